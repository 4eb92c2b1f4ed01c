// What every profile store promises.

#include <gtest/gtest.h>

#include <limits>

#include "platform/posix/PosixProfileStore.h"
#include "platform/scripted/MemoryProfileStore.h"
#include "platform/scripted/OverlayProfileStore.h"
#include "tests/TemporaryFolder.h"

namespace wxbrg {
namespace {

constexpr std::string_view key = R"(Software\Example\Current)";

/// A store with the machine's value "Level" = 3 and without any of the user's.
struct MemorySubject {
    MemorySubject() { store.Put(ProfileScope::machine, key, "Level", 3); }
    MemoryProfileStore store;
};

struct OverlaySubject {
    OverlaySubject() : store(base) { base.Put(ProfileScope::machine, key, "Level", 3); }
    MemoryProfileStore base;
    OverlayProfileStore store;
};

struct PosixSubject {
    PosixSubject() : store({folder / "user.reg", folder / "machine.reg"}) {
        WriteBytes(
            folder / "machine.reg",
            "REGEDIT4\n\n[HKEY_LOCAL_MACHINE\\Software\\Example\\Current]\n\"Level\"=dword:00000003\n");
    }
    TemporaryFolder folder;
    PosixProfileStore store;
};

template <class Subject>
class ProfileStoreContract : public testing::Test {
  protected:
    Subject subject_;
    ProfileStore& store_ = subject_.store;

    ProfileValue User(std::string_view name) { return store_.Read(ProfileScope::user, key, name); }
};

using Subjects = testing::Types<MemorySubject, OverlaySubject, PosixSubject>;
TYPED_TEST_SUITE(ProfileStoreContract, Subjects);

TYPED_TEST(ProfileStoreContract, NothingIsReadWhereNothingWasWritten) {
    EXPECT_EQ(this->User("Level"), ProfileValue());
    EXPECT_EQ(this->store_.Read(ProfileScope::machine, key, "Other"), ProfileValue());
    EXPECT_EQ(this->store_.Read(ProfileScope::machine, R"(Software\Other)", "Level"), ProfileValue());
}

TYPED_TEST(ProfileStoreContract, NumbersOfAll32BitsComeBack) {
    for (const std::int32_t number :
         {0, 10, -1, std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
        EXPECT_TRUE(this->store_.Write(key, "Number", number));
        EXPECT_EQ(this->User("Number"), ProfileValue(number));
    }
}

TYPED_TEST(ProfileStoreContract, TextsComeBackWhateverTheyHold) {
    for (const std::string text : {"", "plain", R"(C:\new "folder"\)", "Grüße 漢字", "; # = [x]", " blanks ",
                                   "two\r\nlines", "tab\there", "dword:00000001", "ends with \\"}) {
        EXPECT_TRUE(this->store_.Write(key, "Text", text));
        EXPECT_EQ(this->User("Text"), ProfileValue(text));
    }
}

TYPED_TEST(ProfileStoreContract, ANumberReplacesATextAndATextANumber) {
    this->store_.Write(key, "Value", std::string("text"));
    this->store_.Write(key, "Value", 5);
    EXPECT_EQ(this->User("Value"), ProfileValue(5));
    this->store_.Write(key, "Value", std::string("text"));
    EXPECT_EQ(this->User("Value"), ProfileValue("text"));
}

TYPED_TEST(ProfileStoreContract, ATrailingBackslashOfTheKeyMakesNoDifference) {
    const std::string slashed = std::string(key) + "\\";
    this->store_.Write(slashed, "Number", 7);
    EXPECT_EQ(this->User("Number"), ProfileValue(7));
    EXPECT_EQ(this->store_.Read(ProfileScope::machine, slashed, "Level"), ProfileValue(3));
}

TYPED_TEST(ProfileStoreContract, NamesCompareWithoutRegardToCase) {
    this->store_.Write(key, "Number", 7);
    EXPECT_EQ(this->store_.Read(ProfileScope::user, R"(SOFTWARE\example\CURRENT)", "nUMBER"),
              ProfileValue(7));
    this->store_.Write(R"(software\EXAMPLE\current)", "NUMBER", 8);
    EXPECT_EQ(this->User("Number"), ProfileValue(8));
}

TYPED_TEST(ProfileStoreContract, ScopesAreApart) {
    EXPECT_EQ(this->store_.Read(ProfileScope::machine, key, "Level"), ProfileValue(3));
    this->store_.Write(key, "Level", 4);
    EXPECT_EQ(this->User("Level"), ProfileValue(4));
    EXPECT_EQ(this->store_.Read(ProfileScope::machine, key, "Level"), ProfileValue(3));
}

TYPED_TEST(ProfileStoreContract, ValuesAndKeysAreApart) {
    this->store_.Write(key, "A", 1);
    this->store_.Write(key, "B", 2);
    this->store_.Write(R"(Software\Example\Current\Below)", "A", 3);
    this->store_.Write(R"(Software\Example)", "A", 4);
    EXPECT_EQ(this->User("A"), ProfileValue(1));
    EXPECT_EQ(this->User("B"), ProfileValue(2));
    EXPECT_EQ(this->store_.Read(ProfileScope::user, R"(Software\Example\Current\Below)", "A"),
              ProfileValue(3));
    EXPECT_EQ(this->store_.Read(ProfileScope::user, R"(Software\Example)", "A"), ProfileValue(4));
}

TYPED_TEST(ProfileStoreContract, NothingToStoreIsNotStored) {
    this->store_.Write(key, "Number", 7);
    EXPECT_FALSE(this->store_.Write(key, "Number", ProfileValue()));
    EXPECT_EQ(this->User("Number"), ProfileValue(7));
}

TYPED_TEST(ProfileStoreContract, ARemovedValueIsGoneAndOthersStay) {
    this->store_.Write(key, "A", 1);
    this->store_.Write(key, "B", 2);
    EXPECT_TRUE(this->store_.Remove(key, "a"));
    EXPECT_EQ(this->User("A"), ProfileValue());
    EXPECT_EQ(this->User("B"), ProfileValue(2));
}

TYPED_TEST(ProfileStoreContract, RemovingWhatIsNotThereSucceeds) {
    EXPECT_TRUE(this->store_.Remove(key, "Nothing"));
    EXPECT_TRUE(this->store_.Remove(R"(Software\Nothing)", "Nothing"));
}

TYPED_TEST(ProfileStoreContract, RemovingLeavesTheMachinesValue) {
    this->store_.Write(key, "Level", 4);
    EXPECT_TRUE(this->store_.Remove(key, "Level"));
    EXPECT_EQ(this->User("Level"), ProfileValue());
    EXPECT_EQ(this->store_.Read(ProfileScope::machine, key, "Level"), ProfileValue(3));
}

}  // namespace
}  // namespace wxbrg
