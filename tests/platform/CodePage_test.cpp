// What every code page promises.

#include <gtest/gtest.h>

#include "platform/posix/IconvCodePage.h"
#include "support/Text.h"

namespace wxbrg {
namespace {

class CodePageContract : public testing::TestWithParam<std::uint32_t> {
  protected:
    IconvCodePage subject_{GetParam()};
    CodePage& page_ = subject_;
};

TEST_P(CodePageContract, TellsItsNumber) {
    EXPECT_EQ(page_.Number(), GetParam());
}

TEST_P(CodePageContract, AsciiStandsAsItIs) {
    std::string ascii;
    for (char byte = 0; byte < 127; ++byte) ascii.push_back(byte);
    EXPECT_EQ(page_.ToBytes(ascii), ascii);
    EXPECT_EQ(page_.ToText(ascii), ascii);
    EXPECT_EQ(page_.LackingCharacters(), 0U);
}

TEST_P(CodePageContract, TheEmptyTextHasNoBytes) {
    EXPECT_EQ(page_.ToBytes(""), "");
    EXPECT_EQ(page_.ToText(""), "");
}

TEST_P(CodePageContract, EveryTextThatIsReadIsUtf8AndIsWrittenAsItWas) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string bytes{static_cast<char>(byte)};
        const std::string text = page_.ToText(bytes);
        EXPECT_TRUE(IsUtf8(text)) << byte;
        EXPECT_EQ(CharacterCount(text), 1U) << byte;
        if (text != "\uFFFD") {
            EXPECT_EQ(page_.ToBytes(text), bytes) << byte;
        }
    }
}

TEST_P(CodePageContract, ALongTextIsThatOfItsParts) {
    const std::string part = "Grüße, мир, 漢字 — \U0001F600 end\r\n";
    const std::string bytes = page_.ToBytes(part);
    const std::uint64_t lacking = page_.LackingCharacters();
    std::string manyParts;
    std::string manyBytes;
    constexpr std::uint64_t times = 10'000;
    for (std::uint64_t i = 0; i < times; ++i) manyParts += part, manyBytes += bytes;
    EXPECT_EQ(page_.ToBytes(manyParts), manyBytes);
    EXPECT_EQ(page_.LackingCharacters(), lacking * (times + 1));
    const std::string text = page_.ToText(bytes);
    std::string manyTexts;
    for (std::uint64_t i = 0; i < times; ++i) manyTexts += text;
    EXPECT_EQ(page_.ToText(manyBytes), manyTexts);
}

INSTANTIATE_TEST_SUITE_P(All, CodePageContract,
                         testing::Values(65001, 1250, 1251, 1252, 1253, 1254, 1256, 1257, 437, 850, 866, 932,
                                         936, 949, 950, 20127, 28591, 28605));

}  // namespace
}  // namespace wxbrg
