#include "platform/posix/PosixUserLocale.h"

#include <gtest/gtest.h>
#include <locale.h>

#include <cstdlib>
#include <memory>

#include "tests/TemporaryFolder.h"
#include "tests/platform/EnvironmentVariable.h"

/// The system's newlocale loses memory when LOCPATH is set, as it is in these tests alone.
extern "C" const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
    return "leak:__argz_add_sep";
}

namespace wxbrg {
namespace {

/// An environment without any locale but these.
struct LocaleEnvironment {
    LocaleEnvironment(const std::optional<std::string>& allValue,
                      const std::optional<std::string>& timeValue = {},
                      const std::optional<std::string>& numericValue = {},
                      const std::optional<std::string>& langValue = {})
        : all("LC_ALL", allValue),
          time("LC_TIME", timeValue),
          numeric("LC_NUMERIC", numericValue),
          characters("LC_CTYPE", std::nullopt),
          lang("LANG", langValue) {}

    EnvironmentVariable all, time, numeric, characters, lang;
};

/// Locales made for the tests in a folder of its own, one of them in another character set than UTF-8.
class MadeLocales : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<TemporaryFolder>();
        const std::string folder = folder_->Path().string();
        const std::string command = "(localedef -c -i de_DE -f ISO-8859-1 " + folder +
                                    "/de_DE.ISO-8859-1 && " + "localedef -c -i ps_AF -f UTF-8 " + folder +
                                    "/ps_AF.UTF-8) >" + folder + "/output 2>&1";
        made_ = std::system(command.c_str()) == 0;
    }
    static void TearDownTestSuite() { folder_.reset(); }

    void SetUp() override {
        if (!made_)
            GTEST_SKIP() << "the sources of locales are not installed: " << ReadBytes(*folder_ / "output");
    }

  private:
    static inline std::unique_ptr<TemporaryFolder> folder_;
    static inline bool made_ = false;
    EnvironmentVariable locales_{"LOCPATH", folder_->Path().string()};
};

void ExpectEnglishNames(const PosixUserLocale& locale) {
    EXPECT_EQ(locale.DayName(3), "Wed");
    EXPECT_EQ(locale.MonthName(5), "May");
}

TEST(PosixUserLocale, TheCLocaleIsEnglishWithThePoint) {
    const LocaleEnvironment environment("C");
    const PosixUserLocale locale;
    ExpectEnglishNames(locale);
    EXPECT_EQ(locale.DecimalSeparator(), U'.');
    EXPECT_EQ(locale.Number(), 1033U);
}

TEST(PosixUserLocale, WithoutAnyEnvironmentItIsTheCLocale) {
    const LocaleEnvironment environment(std::nullopt);
    const PosixUserLocale locale;
    ExpectEnglishNames(locale);
    EXPECT_EQ(locale.DecimalSeparator(), U'.');
    EXPECT_EQ(locale.Number(), 1033U);
}

TEST(PosixUserLocale, ALocaleThatIsNotInstalledCountsAsCButForItsNumber) {
    const EnvironmentVariable locales("LOCPATH", "/nowhere");
    const LocaleEnvironment environment("ja_JP.eucJP");
    const PosixUserLocale locale;
    ExpectEnglishNames(locale);
    EXPECT_EQ(locale.DecimalSeparator(), U'.');
    EXPECT_EQ(locale.Number(), 1041U);
}

TEST(PosixUserLocale, TheProcesssOwnLocaleStaysAsItIs) {
    const std::string before = setlocale(LC_ALL, nullptr);
    const LocaleEnvironment environment("C.UTF-8");
    const PosixUserLocale locale;
    EXPECT_EQ(setlocale(LC_ALL, nullptr), before);
}

TEST_F(MadeLocales, NamesComeInUtf8WhateverTheLocalesCharacterSet) {
    const LocaleEnvironment environment("de_DE.ISO-8859-1");
    const PosixUserLocale locale;
    EXPECT_EQ(locale.MonthName(3), "Mär");
    EXPECT_EQ(locale.DayName(3), "Mi");
    EXPECT_EQ(locale.DecimalSeparator(), U',');
    EXPECT_EQ(locale.Number(), 1031U);
}

TEST_F(MadeLocales, EachCategoryHasALocaleOfItsOwn) {
    const LocaleEnvironment environment(std::nullopt, "C", "de_DE.ISO-8859-1", "ps_AF.UTF-8");
    const PosixUserLocale locale;
    EXPECT_EQ(locale.MonthName(3), "Mar");
    EXPECT_EQ(locale.DecimalSeparator(), U',');
}

TEST_F(MadeLocales, ASeparatorMayBeAnyCharacter) {
    const LocaleEnvironment environment(std::nullopt, "C", std::nullopt, "ps_AF.UTF-8");
    EXPECT_EQ(PosixUserLocale().DecimalSeparator(), U'\u066B');
}

TEST_F(MadeLocales, AnEmptyVariableCountsForNothing) {
    const LocaleEnvironment environment("", "", "", "de_DE.ISO-8859-1");
    EXPECT_EQ(PosixUserLocale().MonthName(3), "Mär");
}

TEST(LocaleNumber, KnowsLanguageAndTerritory) {
    EXPECT_EQ(LocaleNumber("de_DE"), 1031U);
    EXPECT_EQ(LocaleNumber("de_DE.UTF-8"), 1031U);
    EXPECT_EQ(LocaleNumber("de_DE@euro"), 1031U);
    EXPECT_EQ(LocaleNumber("zh_CN.GB18030"), 2052U);
    EXPECT_EQ(LocaleNumber("zh_TW"), 1028U);
    EXPECT_EQ(LocaleNumber("ko_KR"), 1042U);
    EXPECT_EQ(LocaleNumber("ja_JP"), 1041U);
}

TEST(LocaleNumber, WhatIsNotKnownCountsAsEnglish) {
    for (const char* name : {"", "C", "POSIX", "C.UTF-8", "tlh_XX", "de"})
        EXPECT_EQ(LocaleNumber(name), 1033U) << name;
}

}  // namespace
}  // namespace wxbrg
