#include "platform/scripted/MemoryProfileStore.h"

#include <gmock/gmock.h>

#include "platform/scripted/ScriptError.h"

namespace wxbrg {
namespace {

constexpr std::string_view key = R"(Software\Example\)";

TEST(MemoryProfileStore, LoadsNumbersAndTexts) {
    MemoryProfileStore store;
    store.Load(ProfileScope::user, key, "ConvertNames=-1\r\n\nLanguage=s:TST\nEmpty=s:\nPath=s:a=b s:c");
    EXPECT_EQ(store.Read(ProfileScope::user, key, "ConvertNames"), ProfileValue(-1));
    EXPECT_EQ(store.Read(ProfileScope::user, key, "Language"), ProfileValue("TST"));
    EXPECT_EQ(store.Read(ProfileScope::user, key, "Empty"), ProfileValue(""));
    EXPECT_EQ(store.Read(ProfileScope::user, key, "Path"), ProfileValue("a=b s:c"));
}

TEST(MemoryProfileStore, LoadsEitherScope) {
    MemoryProfileStore store;
    store.Load(ProfileScope::machine, key, "Level=3\n");
    EXPECT_EQ(store.Read(ProfileScope::machine, key, "Level"), ProfileValue(3));
    EXPECT_EQ(store.Read(ProfileScope::user, key, "Level"), ProfileValue());
}

TEST(MemoryProfileStore, AByteOrderMarkInFrontOfTheLinesIsPassedOver) {
    MemoryProfileStore store;
    store.Load(ProfileScope::user, key, "\xEF\xBB\xBFLevel=3\n");
    EXPECT_EQ(store.Read(ProfileScope::user, key, "Level"), ProfileValue(3));
}

TEST(MemoryProfileStore, ALineThatIsNoValueIsNamed) {
    for (const std::string line : {"ConvertNames", "=1", "A=", "A=x", "A=1x", "A= 1", "A=2147483648"}) {
        MemoryProfileStore store;
        EXPECT_THAT(
            [&] {
                store.Load(ProfileScope::user, key, "Good=1\n\n" + line + "\n");
            },
            testing::ThrowsMessage<ScriptError>(
                testing::AllOf(testing::StartsWith("line 3: "), testing::HasSubstr("\"" + line + "\""))));
    }
}

TEST(MemoryProfileStore, DumpsWhatItLoadsSortedByName) {
    MemoryProfileStore store;
    store.Load(ProfileScope::user, key, "Zeta=-2147483648\nLanguage=s:Grüße =\nAlpha=10\n");
    EXPECT_EQ(store.Dump(ProfileScope::user, key), "Alpha=10\nLanguage=s:Grüße =\nZeta=-2147483648\n");
}

TEST(MemoryProfileStore, DumpsOneScopeOfOneKey) {
    MemoryProfileStore store;
    store.Write(key, "Mine", 1);
    store.Write(R"(Software\Example\Below)", "Other", 2);
    store.Put(ProfileScope::machine, key, "Machine", 3);
    EXPECT_EQ(store.Dump(ProfileScope::user, key), "Mine=1\n");
    EXPECT_EQ(store.Dump(ProfileScope::machine, R"(SOFTWARE\EXAMPLE)"), "Machine=3\n");
    EXPECT_EQ(store.Dump(ProfileScope::user, R"(Software\Nothing)"), "");
}

TEST(MemoryProfileStore, ANameStaysSpelledAsItWasFirstWritten) {
    MemoryProfileStore store;
    store.Write(key, "ConvertNames", 0);
    store.Write(key, "CONVERTNAMES", -1);
    EXPECT_EQ(store.Dump(ProfileScope::user, key), "ConvertNames=-1\n");
}

TEST(MemoryProfileStore, ATextWithALineBreakHasNoLine) {
    MemoryProfileStore store;
    store.Write(key, "Text", std::string("a\nb"));
    EXPECT_THROW(store.Dump(ProfileScope::user, key), ScriptError);
}

}  // namespace
}  // namespace wxbrg
