#include "cli/Json.h"

#include <gtest/gtest.h>

namespace wxbrg::cli {
namespace {

using namespace std::string_literals;

TEST(JsonString, PutsATextInQuotes) {
    EXPECT_EQ(JsonString(""), "\"\"");
    EXPECT_EQ(JsonString("plain text"), "\"plain text\"");
}

TEST(JsonString, EscapesQuotesBackslashesAndLineBreaks) {
    EXPECT_EQ(JsonString("a\"b\\c\r\nd\te"), R"("a\"b\\c\r\nd\te")");
}

TEST(JsonString, EscapesOtherControlCharactersByNumber) {
    EXPECT_EQ(JsonString("\0\x01\x1f"s), R"("\u0000\u0001\u001f")");
}

TEST(JsonString, LeavesCharactersOutsideAsciiAsTheyAre) {
    EXPECT_EQ(JsonString("Ωß€😀\x7f"), "\"Ωß€😀\x7f\"");
}

TEST(JsonString, PutsAReplacementForBytesThatAreNoUtf8) {
    EXPECT_EQ(JsonString("a\xFF\x62\xC3"), "\"a\uFFFDb\uFFFD\"");
}

}  // namespace
}  // namespace wxbrg::cli
