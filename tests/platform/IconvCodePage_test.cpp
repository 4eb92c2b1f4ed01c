#include "platform/posix/IconvCodePage.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <system_error>

namespace wxbrg {
namespace {

TEST(IconvCodePage, WritesTheBytesOfTheCodePage) {
    EXPECT_EQ(IconvCodePage(1252).ToBytes("Grüße €"),
              "Gr\xFC\xDF"
              "e \x80");
    EXPECT_EQ(IconvCodePage(1251).ToBytes("мир"), "\xEC\xE8\xF0");
    EXPECT_EQ(IconvCodePage(850).ToBytes("ü"), "\x81");
    EXPECT_EQ(IconvCodePage(437).ToBytes("║"), "\xBA");
    EXPECT_EQ(IconvCodePage(932).ToBytes("漢"), "\x8A\xBF");
    EXPECT_EQ(IconvCodePage(936).ToBytes("漢"), "\x9D\x68");
    EXPECT_EQ(IconvCodePage(28605).ToBytes("€"), "\xA4");
    EXPECT_EQ(IconvCodePage(65001).ToBytes("Grüße 漢 \U0001F600"), "Grüße 漢 \U0001F600");
}

TEST(IconvCodePage, AConversionThatCannotBeLoadedIsNoUnknownCodePage) {
    // In a process of its own: the system remembers what it could not load.
    const pid_t process = fork();
    if (process == 0) {
        rlimit limit{};
        if (getrlimit(RLIMIT_NOFILE, &limit) != 0) _exit(98);
        const rlimit none{0, limit.rlim_max};
        int status = setrlimit(RLIMIT_NOFILE, &none) == 0 ? 1 : 99;
        try {
            status += IconvCodePage::IsSupported(1257) ? 1 : 2;
        } catch (const std::system_error& error) {
            // Sanitizers need a descriptor to look at an object.
            setrlimit(RLIMIT_NOFILE, &limit);
            if (error.code() == std::errc::too_many_files_open) status = 0;
        }
        _exit(status);
    }
    int status = -1;
    ASSERT_EQ(waitpid(process, &status, 0), process);
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(IconvCodePage::IsSupported(4711));
}

TEST(IconvCodePage, ReadsTheBytesOfTheCodePage) {
    EXPECT_EQ(IconvCodePage(1252).ToText("Gr\xFC\xDF"
                                         "e \x80"),
              "Grüße €");
    EXPECT_EQ(IconvCodePage(932).ToText("\x8A\xBF"
                                        "a"),
              "漢a");
    EXPECT_EQ(IconvCodePage(65001).ToText("Grüße 漢"), "Grüße 漢");
}

TEST(IconvCodePage, ALackingCharacterIsOneQuestionMarkAndCountedOnce) {
    IconvCodePage page(1252);
    EXPECT_EQ(page.ToBytes("漢字 и \U0001F600?"), "?? ? ??");
    EXPECT_EQ(page.LackingCharacters(), 4U);
    EXPECT_EQ(page.ToBytes("ï漢"), "\xEF?");
    EXPECT_EQ(page.LackingCharacters(), 5U);
}

TEST(IconvCodePage, ALackingCharacterIsNotWrittenAsASimilarOne) {
    IconvCodePage ascii(20127);
    EXPECT_EQ(ascii.ToBytes("ä€“”ﬁ½"), "??????");
    IconvCodePage latin(28591);
    EXPECT_EQ(latin.ToBytes("€“Ł"), "???");
    EXPECT_EQ(ascii.LackingCharacters() + latin.LackingCharacters(), 9U);
}

TEST(IconvCodePage, TagCharactersAndOtherInvisibleOnesAreLackingToo) {
    IconvCodePage page(1252);
    EXPECT_EQ(page.ToBytes("a\U000E0001\U000E007Fb\u200Bc\uFEFFd\uFFFDe\U000E0080"), "a??b?c?d?e?");
    EXPECT_EQ(page.LackingCharacters(), 6U);
    EXPECT_EQ(IconvCodePage(54936).ToText(IconvCodePage(54936).ToBytes("a\U000E0041b")), "a\U000E0041b");
}

TEST(IconvCodePage, AByteThatTheCodePageDoesNotKnowIsReadAsReplacement) {
    EXPECT_EQ(IconvCodePage(1252).ToText("a\x81\x8D"
                                         "b\x9D"),
              "a\uFFFD\uFFFDb\uFFFD");
    EXPECT_EQ(IconvCodePage(20127).ToText("a\xE4"), "a\uFFFD");
    EXPECT_EQ(IconvCodePage(932).ToText("a\x8A"), "a\uFFFD");
    EXPECT_EQ(IconvCodePage(932).ToText("\x8A\x0A"
                                        "a"),
              "\uFFFD\na");
}

TEST(IconvCodePage, BytesThatAreNoUtf8AreReadAsOneReplacementEach) {
    IconvCodePage page(65001);
    EXPECT_EQ(page.ToText("a\xFF\xE4\xBC"
                          "b\xC0\x80"),
              "a\uFFFD\uFFFD\uFFFDb\uFFFD\uFFFD");
    EXPECT_EQ(page.ToText("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(page.LackingCharacters(), 0U);
}

TEST(IconvCodePage, ATextThatIsNoUtf8IsWrittenWithOneMarkForEachByte) {
    IconvCodePage page(1252);
    EXPECT_EQ(page.ToBytes("a\xFF\xE4\xBC"
                           "b\xF0\x9F"),
              "a???b??");
    EXPECT_EQ(page.LackingCharacters(), 5U);
    EXPECT_EQ(IconvCodePage(65001).ToBytes("a\xFF"), "a\uFFFD");
}

TEST(IconvCodePage, CodePagesThatComposeKeepTheirLastCharacter) {
    for (const std::uint32_t number : {1255U, 1258U}) {
        IconvCodePage page(number);
        EXPECT_EQ(page.ToText("a"), "a") << number;
        EXPECT_EQ(page.ToText("a\xD9\x8A"
                              "b"),
                  page.ToText("a\xD9") + "\uFFFDb")
            << number;
        EXPECT_EQ(page.ToText("a\xFF"), page.ToText("a") + page.ToText("\xFF")) << number;
    }
    EXPECT_EQ(IconvCodePage(1258).ToText(IconvCodePage(1258).ToBytes("Việt")), "Việt");
}

TEST(IconvCodePage, AnUnknownCodePageIsRefusedInWords) {
    for (const std::uint32_t number :
         {0U, 1U, 37U, 500U, 1200U, 1201U, 12000U, 28602U, 65000U, 99999U, 4294967295U}) {
        EXPECT_FALSE(IconvCodePage::IsSupported(number)) << number;
        EXPECT_THAT(
            [&] {
                const IconvCodePage page(number);
            },
            testing::ThrowsMessage<std::invalid_argument>(
                testing::HasSubstr("code page " + std::to_string(number) + " is not known")));
    }
}

TEST(IconvCodePage, TheUsualCodePagesAreSupported) {
    for (const std::uint32_t number :
         {437U,   737U,   775U,   850U,   852U,   855U,   857U,   858U,   860U,   861U,   862U,
          863U,   864U,   865U,   866U,   869U,   874U,   932U,   936U,   949U,   950U,   1250U,
          1251U,  1252U,  1253U,  1254U,  1255U,  1256U,  1257U,  1258U,  10000U, 20127U, 20866U,
          20932U, 21866U, 51932U, 51936U, 51949U, 54936U, 28591U, 28592U, 28593U, 28594U, 28595U,
          28596U, 28597U, 28598U, 28599U, 28603U, 28605U, 65001U})
        EXPECT_TRUE(IconvCodePage::IsSupported(number)) << number;
}

TEST(IconvCodePage, EachLackingCharacterOfALongTextIsReplacedAndCounted) {
    std::string text;
    for (int i = 0; i < 1'000'000; ++i) text += "и";
    IconvCodePage page(1252);
    EXPECT_EQ(page.ToBytes(text), std::string(1'000'000, '?'));
    EXPECT_EQ(page.LackingCharacters(), 1'000'000U);
}

}  // namespace
}  // namespace wxbrg
