#include "platform/HelpBook.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/TemporaryFolder.h"

namespace wxbrg {
namespace {

TEST(HelpBook, APageGoesFromItsMarkToTheNext) {
    const HelpBook book(
        "<!-- page 7 -->\n# Seven\n\nAbout seven.\n\n<!-- page 12 -->\n# Twelve\n\nAbout twelve.\n");
    ASSERT_EQ(book.Pages().size(), 2U);
    EXPECT_EQ(book.Pages()[0].number, 7);
    EXPECT_EQ(book.Pages()[0].title, "Seven");
    EXPECT_EQ(book.Pages()[0].text, "# Seven\n\nAbout seven.\n");
    EXPECT_EQ(book.Pages()[1].number, 12);
    EXPECT_EQ(book.Pages()[1].text, "# Twelve\n\nAbout twelve.\n");
}

TEST(HelpBook, FindsAPageByItsNumber) {
    const HelpBook book("<!-- page 7 -->\n# Seven\n<!-- page 12 -->\n# Twelve\n");
    ASSERT_NE(book.Page(12), nullptr);
    EXPECT_EQ(book.Page(12)->title, "Twelve");
    EXPECT_EQ(book.Page(8), nullptr);
}

TEST(HelpBook, TheFirstOfTwoPagesOfANumberCounts) {
    const HelpBook book("<!-- page 7 -->\n# First\n<!-- page 7 -->\n# Second\n");
    EXPECT_EQ(book.Page(7)->title, "First");
}

TEST(HelpBook, WhatStandsBeforeTheFirstPageBelongsToNone) {
    const HelpBook book("# Notes for the writer\n\n<!-- page 7 -->\n# Seven\n");
    ASSERT_EQ(book.Pages().size(), 1U);
    EXPECT_EQ(book.Pages()[0].text, "# Seven\n");
}

TEST(HelpBook, LeavesCommentLinesOut) {
    const HelpBook book("<!-- page 7 -->\n# Seven\n<!-- for the writer -->\nText <!-- inside a line -->.\n");
    EXPECT_EQ(book.Page(7)->text, "# Seven\nText <!-- inside a line -->.\n");
}

TEST(HelpBook, KeepsEveryLineOfAFencedBlock) {
    const HelpBook book(
        "<!-- page 7 -->\n# Seven\n```\n<!-- page 8 -->\n    indented\n```\n<!-- page 9 -->\n# Nine\n");
    ASSERT_EQ(book.Pages().size(), 2U);
    EXPECT_EQ(book.Page(7)->text, "# Seven\n```\n<!-- page 8 -->\n    indented\n```\n");
}

TEST(HelpBook, AMarkWithoutAWholeNumberIsAComment) {
    const HelpBook book(
        "<!-- page 7 -->\n# Seven\n<!-- page 8x -->\n<!-- page  -->\n<!-- page -->\n<!-- page 99999999999 "
        "-->\n");
    ASSERT_EQ(book.Pages().size(), 1U);
    EXPECT_EQ(book.Page(7)->text, "# Seven\n");
}

TEST(HelpBook, LinesMayEndInCarriageReturns) {
    const HelpBook book("<!-- page 7 -->\r\n# Seven\r\n\r\nText.\r\n");
    EXPECT_EQ(book.Page(7)->title, "Seven");
    EXPECT_EQ(book.Page(7)->text, "# Seven\n\nText.\n");
}

TEST(HelpBook, APageMayLackAHeadingOrAnyText) {
    const HelpBook book("<!-- page 7 -->\n\nOnly text\n<!-- page 8 -->");
    EXPECT_EQ(book.Page(7)->title, "");
    EXPECT_EQ(book.Page(7)->text, "Only text\n");
    EXPECT_EQ(book.Page(8)->title, "");
    EXPECT_EQ(book.Page(8)->text, "");
}

TEST(HelpBook, ATextWithoutPagesIsAnEmptyBook) {
    EXPECT_TRUE(HelpBook("").Pages().empty());
    EXPECT_TRUE(HelpBook("# Only a heading\n").Pages().empty());
}

TEST(HelpBook, IsReadFromAFile) {
    const TemporaryFolder folder;
    const std::filesystem::path file = folder / "wxbrgENU.hlp";
    WriteBytes(file, "<!-- page 7 -->\n# Größe\n" + std::string(40000, 'x') + '\n');
    const auto book = HelpBook::Read(file.string());
    ASSERT_TRUE(book.has_value());
    ASSERT_EQ(book->Pages().size(), 1U);
    EXPECT_EQ(book->Pages()[0].title, "Größe");
    EXPECT_EQ(book->Pages()[0].text, "# Größe\n" + std::string(40000, 'x') + '\n');
}

TEST(HelpBook, AFileThatIsMissingOrAFolderIsNoBook) {
    const TemporaryFolder folder;
    EXPECT_FALSE(HelpBook::Read((folder / "missing.hlp").string()).has_value());
    EXPECT_FALSE(HelpBook::Read(folder.Path().string()).has_value());
}

}  // namespace
}  // namespace wxbrg
