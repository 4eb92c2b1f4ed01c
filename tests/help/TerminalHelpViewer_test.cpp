#include "platform/terminal/lines/TerminalHelpViewer.h"

#include <gmock/gmock.h>

#include <sstream>

#include "platform/HelpBook.h"
#include "support/Text.h"
#include "tests/TemporaryFolder.h"
#include "tests/help/HelpExamples.h"

namespace wxbrg {
namespace {

class TerminalHelpViewerTest : public testing::Test {
  protected:
    /// What the viewer writes for page 7 of a help file of this text.
    std::string Shown(const std::string& text) {
        WriteBytes(folder_ / "wxbrgENU.hlp", "<!-- page 7 -->\n" + text);
        return Shown("wxbrgENU.hlp", 7);
    }
    std::string Shown(const std::string& file, std::int32_t number) {
        std::ostringstream out;
        TerminalHelpViewer(out, folder_.Path().string()).ShowPage(file, number);
        return out.str();
    }

    TemporaryFolder folder_;
};

TEST_F(TerminalHelpViewerTest, UnderlinesHeadings) {
    EXPECT_EQ(Shown("# Größe\n\nText.\n\n## More\n"), "\nGröße\n=====\n\nText.\n\nMore\n----\n");
}

TEST_F(TerminalHelpViewerTest, ShowsLinksAsTheirText) {
    EXPECT_EQ(Shown("Related: [one](#8), [two](#9) [not] a (link)\n"),
              "\nRelated: one, two [not] a (link)\n");
    EXPECT_EQ(Shown("[x] before [one](#8).\n"), "\n[x] before one.\n");
    EXPECT_EQ(Shown("no end [one](#8\n"), "\nno end [one](#8\n");
}

TEST_F(TerminalHelpViewerTest, LeavesMarksOfEmphasisAndCodeOut) {
    EXPECT_EQ(Shown("- **Bold:** a `code`\n"), "\n- Bold: a code\n");
}

TEST_F(TerminalHelpViewerTest, ShowsBlocksAsTheyStandButIndented) {
    EXPECT_EQ(Shown("Text:\n\n<!-- export a.aml -->\n```\n# `a` **b**\n\n  [c](#8)\n```\n\nText.\n"),
              "\nText:\n\n    # `a` **b**\n\n      [c](#8)\n\nText.\n");
}

TEST_F(TerminalHelpViewerTest, TellsWhereTheFileOrThePageIsMissing) {
    const std::string where = folder_.Path().string();
    EXPECT_EQ(Shown("wxbrgDEU.hlp", 7),
              "\nThere is no help: the file wxbrgDEU.hlp cannot be read in the folder " + where + ".\n");
    WriteBytes(folder_ / "wxbrgENU.hlp", "<!-- page 7 -->\n# Seven\n");
    EXPECT_EQ(Shown("wxbrgENU.hlp", 8),
              "\nThere is no help on this: the file wxbrgENU.hlp lacks the page 8.\n");
}

TEST_F(TerminalHelpViewerTest, PagesOfTheHelpFitInto80Columns) {
    for (const std::string file : {"wxbrgENU.hlp", "wxbrgDEU.hlp"}) {
        const auto book = HelpBook::Read(std::string(WXBRG_HELP_FOLDER "/") + file);
        ASSERT_TRUE(book.has_value());
        for (const HelpPage& page : book->Pages()) {
            std::ostringstream out;
            TerminalHelpViewer(out, WXBRG_HELP_FOLDER).ShowPage(file, page.number);
            EXPECT_THAT(out.str(), testing::StartsWith("\n" + page.title + "\n="));
            for (const std::string& line : LinesOf(out.str())) {
                if (!line.starts_with("    ")) {
                    EXPECT_LE(CharacterCount(line), 80U) << line;
                }
                EXPECT_EQ(line.find("](#"), std::string::npos) << line;
            }
        }
    }
}

}  // namespace
}  // namespace wxbrg
