// What the help shows of exports is what the program writes.

#include "tests/help/HelpExamples.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <map>
#include <sstream>

#include "tests/TemporaryFolder.h"
#include "tests/cli/Process.h"

namespace wxbrg {
namespace {

/// A language of the help, with what its examples are exported in.
struct ExampleLanguage {
    std::string tag;
    std::string locale;
};

/// The lines of both files of an export.
struct Exported {
    std::vector<std::string> definitions;
    std::vector<std::string> log;
};

class HelpExamples : public testing::TestWithParam<ExampleLanguage> {
  protected:
    Exported Export(const std::string& repository, const std::string& setting) const {
        const std::string output = (folder_ / "help.wpx").string();
        std::vector<std::string> arguments{WXBRG_PROGRAM, "export", WXBRG_HELP_FOLDER "/" + repository, "-o",
                                           output};
        arguments.insert(arguments.end(), {"--language", GetParam().tag, "--locale", GetParam().locale});
        if (!setting.empty()) arguments.insert(arguments.end(), {"--set", setting});
        const cli::ProcessResult result =
            cli::RunProcess(arguments, {{}, folder_.Path(), {{"XDG_CONFIG_HOME", folder_.Path().string()}}});
        EXPECT_EQ(result.status, 0) << result.err;
        return {LinesOf(ReadBytes(output)), LinesOf(ReadBytes(folder_ / "help.log"))};
    }

    TemporaryFolder folder_;
};

TEST_P(HelpExamples, AreLinesOfRealExports) {
    const auto text =
        ReadBytes(std::filesystem::path(WXBRG_HELP_FOLDER) / ("wxbrg" + GetParam().tag + ".hlp"));
    const std::vector<HelpExample> examples = ExamplesOf(text);
    ASSERT_FALSE(examples.empty());
    std::map<std::string, Exported> exports;
    for (const HelpExample& example : examples) {
        const std::string key = example.repository + ' ' + example.setting;
        if (!exports.contains(key)) exports[key] = Export(example.repository, example.setting);
        ASSERT_FALSE(example.lines.empty());
        const bool log = example.lines.front().starts_with("WXB");
        EXPECT_TRUE(Shows(example, log ? exports[key].log : exports[key].definitions))
            << "page " << example.page << ", " << key << ":\n"
            << testing::PrintToString(example.lines);
    }
}

INSTANTIATE_TEST_SUITE_P(, HelpExamples,
                         testing::Values(ExampleLanguage{"ENU", "1033"}, ExampleLanguage{"DEU", "1031"}),
                         [](const auto& language) {
                             return language.param.tag;
                         });

HelpExample Example(std::vector<std::string> lines) {
    return {0, {}, {}, std::move(lines)};
}

TEST(Shows, OnlyLinesThatFollowEachOther) {
    const std::vector<std::string> exported{"a", "b", "c", "d"};
    EXPECT_TRUE(Shows(Example({"b", "c"}), exported));
    EXPECT_FALSE(Shows(Example({"b", "d"}), exported));
    EXPECT_FALSE(Shows(Example({"c", "b"}), exported));
    EXPECT_TRUE(Shows(Example({"a", "…", "d"}), exported));
    EXPECT_FALSE(Shows(Example({"d", "…", "a"}), exported));
    EXPECT_FALSE(Shows(Example({"a", "…", "e"}), exported));
    EXPECT_FALSE(Shows(Example({}), exported));
}

TEST(Shows, WholeLinesUnlessTheRestIsLeftOut) {
    const std::vector<std::string> exported{"one two three", "\tindented"};
    EXPECT_FALSE(Shows(Example({"one two"}), exported));
    EXPECT_TRUE(Shows(Example({"one two …"}), exported));
    EXPECT_FALSE(Shows(Example({"one twenty …"}), exported));
    EXPECT_TRUE(Shows(Example({"    indented"}), exported));
    EXPECT_FALSE(Shows(Example({"indented"}), exported));
}

TEST(ExamplesOf, TellsPageSettingAndLines) {
    const auto examples =
        ExamplesOf("<!-- page 7 -->\n# Seven\n<!-- export a.aml X=0 -->\n```\n  one\ntwo\n```\n");
    ASSERT_EQ(examples.size(), 1U);
    EXPECT_EQ(examples[0].page, 7);
    EXPECT_EQ(examples[0].repository, "a.aml");
    EXPECT_EQ(examples[0].setting, "X=0");
    EXPECT_THAT(examples[0].lines, testing::ElementsAre("  one", "two"));
}

TEST(ExamplesOf, RefusesABlockThatSaysNotWhereItIsFrom) {
    EXPECT_THROW(ExamplesOf("<!-- page 7 -->\n```\none\n```\n"), std::runtime_error);
    EXPECT_THROW(ExamplesOf("<!-- export a.aml -->\nno block\n"), std::runtime_error);
    EXPECT_THROW(ExamplesOf("<!-- export a.aml -->\n```\nno end\n"), std::runtime_error);
}

}  // namespace
}  // namespace wxbrg
