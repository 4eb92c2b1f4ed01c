#include <gmock/gmock.h>

#include <set>
#include <string_view>

#include "tests/architecture/Includes.h"
#include "tests/architecture/SourceTree.h"

namespace wxbrg::architecture {
namespace {

const std::vector<TreeFile>& Sources() {
    static const std::vector<TreeFile> files = ReadTree(WXBRG_SOURCE_TREE, {".h", ".cpp", ".inc", ".c"});
    return files;
}

TEST(SourceTree, LinesAreCountedWithAndWithoutALastLineBreak) {
    EXPECT_EQ(LineCount(""), 0U);
    EXPECT_EQ(LineCount("a"), 1U);
    EXPECT_EQ(LineCount("a\n"), 1U);
    EXPECT_EQ(LineCount("a\n\nb"), 3U);
}

TEST(SourceTree, AWordIsFoundOnlyWhole) {
    EXPECT_TRUE(HoldsWord("the end", "end"));
    EXPECT_TRUE(HoldsWord("ending: end.", "end"));
    EXPECT_FALSE(HoldsWord("ending, send, the_end, end2", "end"));
}

TEST(SourceTree, ReadingFindsTheFilesOfAllRooms) {
    std::vector<std::string> paths;
    for (const TreeFile& file : Sources()) paths.push_back(file.path);
    EXPECT_THAT(paths, testing::IsSupersetOf({"support/Text.h", "support/Text.cpp", "platform/Clock.h",
                                              "aris/Repository.h", "run/RunExport.h",
                                              "tests/architecture/Tree_test.cpp"}));
}

// The compiler finds a file beside the including one by itself, past what the rooms may know.
TEST(Tree, EveryQuotedIncludeOfTheProgramIsAFileNamedFromTheRoot) {
    std::set<std::string> paths;
    for (const TreeFile& file : Sources()) paths.insert(file.path);
    for (const TreeFile& file : Sources()) {
        if (file.path.starts_with("tests/")) continue;
        for (const std::string& include : QuotedIncludesOf(file.text))
            EXPECT_TRUE(paths.contains(include)) << file.path << " includes " << include;
    }
}

TEST(Tree, PathsBecomeTextAtOnePlace) {
    for (const TreeFile& file : Sources()) {
        if (file.path.starts_with("tests/") || file.path == "platform/Path.h") continue;
        for (const std::string_view conversion : {".string()", "u8string", "generic_string"})
            EXPECT_EQ(file.text.find(conversion), std::string::npos)
                << file.path << " has " << conversion << " in place of platform/Path.h";
    }
}

TEST(Tree, NoSourceIsLongerThanSixHundredLines) {
    for (const TreeFile& file : Sources())
        if (file.path.ends_with(".h") || file.path.ends_with(".cpp")) {
            EXPECT_LE(LineCount(file.text), 600U) << file.path << " would be clearer as two files";
        }
}

TEST(Tree, NothingIsMarkedAsUnfinished) {
    // Put together here, so that this file does not hold them.
    const std::vector<std::string> marks = {std::string("TO") + "DO", std::string("FIX") + "ME",
                                            std::string("XX") + "X", std::string("HA") + "CK"};
    for (const TreeFile& file :
         ReadTree(WXBRG_SOURCE_TREE, {".h", ".cpp", ".inc", ".c", ".txt", ".cmake", ".json", ".md", ".py",
                                      ".sh", ".aml", ".yml", ".1", ".in"}))
        for (const std::string& mark : marks)
            EXPECT_FALSE(HoldsWord(file.text, mark)) << file.path << " holds " << mark;
}

}  // namespace
}  // namespace wxbrg::architecture
