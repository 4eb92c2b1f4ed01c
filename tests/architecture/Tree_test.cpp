#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

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

/// The paths that a page names in back quotes: what holds a slash, and what ends as a file of the tree does.
std::vector<std::string> PathsNamedIn(const std::string& page) {
    static const std::regex path("`([A-Za-z_][A-Za-z0-9_./-]*(?:/[A-Za-z0-9_.-]*|\\.(?:h|cpp|md|sh)))`");
    std::vector<std::string> paths;
    for (std::sregex_iterator found(page.begin(), page.end(), path), end; found != end; ++found)
        paths.push_back((*found)[1]);
    return paths;
}

TEST(Tree, PathsAreFoundInAPage) {
    EXPECT_THAT(PathsNamedIn("See `run/Frame.h`, `data/` and `run.sh`, not `Frame`, `a b/c` or run/Gone.h."),
                testing::ElementsAre("run/Frame.h", "data/", "run.sh"));
}

TEST(Tree, EveryPathThatTheArchitecturePageNamesExists) {
    const std::filesystem::path root(WXBRG_SOURCE_TREE);
    std::ifstream file(root / "docs/architecture.md");
    const std::string page(std::istreambuf_iterator<char>(file), {});
    const std::vector<std::string> paths = PathsNamedIn(page);
    EXPECT_GT(paths.size(), 50U);
    for (const std::string& path : paths)
        EXPECT_TRUE(std::filesystem::exists(root / path)) << "docs/architecture.md names " << path;
}

TEST(Tree, TheArchitecturePageIsShort) {
    std::ifstream file(std::filesystem::path(WXBRG_SOURCE_TREE) / "docs/architecture.md");
    EXPECT_LE(LineCount(std::string(std::istreambuf_iterator<char>(file), {})), 250U);
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
