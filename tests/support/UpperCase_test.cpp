#include <gmock/gmock.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "support/Text.h"
#include "support/UpperCaseTable.h"

namespace wxbrg {
namespace {

const std::string unicodeData = "/usr/share/unicode/UnicodeData.txt";

std::string ReadFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// What a command writes to its standard output; fails the test when the command fails.
std::string OutputOf(const std::string& command) {
    std::FILE* const pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) {
        ADD_FAILURE() << "cannot start " << command;
        return {};
    }
    std::string output;
    char buffer[4096];
    for (std::size_t got = 0; (got = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;)
        output.append(buffer, got);
    EXPECT_EQ(pclose(pipe), 0) << command;
    return output;
}

TEST(UpperCase, RaisesLettersAndLeavesTheRest) {
    EXPECT_EQ(UpperCase("Order-Processing 24/7 [x]{y}"), "ORDER-PROCESSING 24/7 [X]{Y}");
    EXPECT_EQ(UpperCase(""), "");
    EXPECT_EQ(UpperCase("`@az{"), "`@AZ{");
}

TEST(UpperCase, MapsOneCharacterToOne) {
    EXPECT_EQ(UpperCase("straße"), "STRAßE");
    EXPECT_EQ(UpperCase("ᾳ"), "ᾼ");
    EXPECT_EQ(UpperCase("ﬁ ŉ ǰ"), "ﬁ ŉ ǰ");
}

TEST(UpperCase, KnowsManyScripts) {
    EXPECT_EQ(UpperCase("äöüéñ"), "ÄÖÜÉÑ");
    EXPECT_EQ(UpperCase("ÿ"), "Ÿ");
    EXPECT_EQ(UpperCase("µ"), "Μ");
    EXPECT_EQ(UpperCase("ſ"), "S");
    EXPECT_EQ(UpperCase("άσς"), "ΆΣΣ");
    EXPECT_EQ(UpperCase("заказ ё"), "ЗАКАЗ Ё");
    EXPECT_EQ(UpperCase("ა"), "Ა");
    EXPECT_EQ(UpperCase("𐐨"), "𐐀");
    EXPECT_EQ(UpperCase("注文処理 طلب"), "注文処理 طلب");
}

TEST(UpperCase, ForgetsTheUsersLocale) {
    EXPECT_EQ(UpperCase("i"), "I");
    EXPECT_EQ(UpperCase("ı"), "I");
    EXPECT_EQ(UpperCase("İ"), "İ");
}

TEST(UpperCase, TellsNeighboursInATableRowApart) {
    EXPECT_EQ(UpperCase("āĂă"), "ĀĂĂ");
    EXPECT_EQ(UpperCase("ǅǆ"), "ǄǄ");
}

TEST(UpperCase, LeavesWhatIsUpperCaseAlready) {
    for (const UpperCaseRow& row : upperCaseTable)
        for (char32_t character = row.first; character <= row.last; character += row.step) {
            std::string text;
            AppendCharacter(text, character);
            const std::string upper = UpperCase(text);
            ASSERT_NE(upper, text);
            ASSERT_EQ(UpperCase(upper), upper) << text;
        }
}

TEST(UpperCase, LeavesBytesThatAreNoUtf8) {
    EXPECT_EQ(UpperCase("a\xFF\xC3z\xE2\x82"), "A\xFF\xC3Z\xE2\x82");
}

TEST(UpperCaseTable, RowsAreSortedAndDoNotOverlap) {
    char32_t behind = 0;
    for (const UpperCaseRow& row : upperCaseTable) {
        EXPECT_GE(row.first, behind);
        EXPECT_GE(row.last, row.first);
        EXPECT_TRUE(row.step == 1 || row.step == 2);
        EXPECT_EQ((row.last - row.first) % row.step, 0U);
        behind = row.last + 1;
    }
}

TEST(UpperCaseTable, IsWhatItsGeneratorMakesOfUnicodesData) {
    if (!std::filesystem::exists(unicodeData)) GTEST_SKIP() << "needs the package unicode-data";
    const std::string folder = std::string(WXBRG_SOURCE_TREE) + "/support/";
    EXPECT_EQ(OutputOf("python3 '" + folder + "generate_upper_case_table.py' " + unicodeData),
              ReadFile(folder + "UpperCaseTable.inc"));
}

}  // namespace
}  // namespace wxbrg
