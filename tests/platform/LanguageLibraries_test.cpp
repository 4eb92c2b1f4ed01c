// What every source of language libraries promises.

#include <gtest/gtest.h>

#include "platform/posix/DlLanguageLibraries.h"
#include "platform/scripted/MemoryLanguageLibraries.h"
#include "support/Text.h"

namespace wxbrg {
namespace {

/// Libraries with one, "texts.dll", that has the texts 1000 "Hello" and 1010 "Grüße €".
struct MemorySubject {
    MemorySubject() { libraries.Put("texts.dll", {{1000, "Hello"}, {1010, "Grüße €"}}); }
    MemoryLanguageLibraries libraries;
};

struct DlSubject {
    DlLanguageLibraries libraries{WXBRG_TEST_LIBRARIES};
};

template <class Subject>
class LanguageLibrariesContract : public testing::Test {
  protected:
    Subject subject_;
    LanguageLibraries& libraries_ = subject_.libraries;
};

using Subjects = testing::Types<MemorySubject, DlSubject>;
TYPED_TEST_SUITE(LanguageLibrariesContract, Subjects);

TYPED_TEST(LanguageLibrariesContract, ALibraryAnswersANumberWithItsText) {
    const auto library = this->libraries_.Load("texts.dll");
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(library->LoadString(1000, 4096), "Hello");
    EXPECT_EQ(library->LoadString(1010, 4096), "Grüße €");
}

TYPED_TEST(LanguageLibrariesContract, ANumberWithoutATextGivesTheEmptyText) {
    const auto library = this->libraries_.Load("texts.dll");
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(library->LoadString(1, 4096), "");
    EXPECT_EQ(library->LoadString(0xFFFFFFFF, 4096), "");
}

TYPED_TEST(LanguageLibrariesContract, ATextIsCutToOneByteLessThanTheCapacity) {
    const auto library = this->libraries_.Load("texts.dll");
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(library->LoadString(1000, 6), "Hello");
    EXPECT_EQ(library->LoadString(1000, 5), "Hell");
    EXPECT_EQ(library->LoadString(1000, 1), "");
    EXPECT_EQ(library->LoadString(1000, 0), "");
}

TYPED_TEST(LanguageLibrariesContract, ACutTextEndsWithAWholeCharacter) {
    const auto library = this->libraries_.Load("texts.dll");
    ASSERT_NE(library, nullptr);
    const std::string whole = library->LoadString(1010, 4096);
    for (std::size_t capacity = 1; capacity <= whole.size() + 1; ++capacity) {
        const std::string text = library->LoadString(1010, capacity);
        EXPECT_TRUE(IsUtf8(text)) << capacity;
        EXPECT_TRUE(whole.starts_with(text)) << capacity;
        EXPECT_LT(text.size(), capacity);
        EXPECT_TRUE(text == whole ||
                    text.size() + CharacterLength(std::string_view(whole).substr(text.size())) >= capacity)
            << capacity;
    }
}

TYPED_TEST(LanguageLibrariesContract, ALibraryThatIsNotThereIsNull) {
    EXPECT_EQ(this->libraries_.Load("missing.dll"), nullptr);
    EXPECT_EQ(this->libraries_.Load(""), nullptr);
}

TYPED_TEST(LanguageLibrariesContract, ALibraryCanBeLoadedMoreThanOnce) {
    auto first = this->libraries_.Load("texts.dll");
    const auto second = this->libraries_.Load("texts.dll");
    ASSERT_TRUE(first && second);
    first.reset();
    EXPECT_EQ(second->LoadString(1000, 4096), "Hello");
}

}  // namespace
}  // namespace wxbrg
