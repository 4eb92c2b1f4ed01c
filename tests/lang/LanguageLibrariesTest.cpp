#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>

#include "lang/LanguageLibraryAbi.h"

namespace wxbrg {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// Each number that the program asks for, with how many arguments it passes.
std::map<std::uint32_t, int> AllNumbers() {
    // clang-format off
    std::map<std::uint32_t, int> all = {
        // The frame of message boxes
        {1000, 2}, {1010, 2}, {1020, 0}, {1030, 0}, {1040, 2},
        // Failures
        {2000, 1}, {2010, 0}, {2020, 1}, {2030, 1}, {2040, 2}, {2050, 0}, {2060, 1}, {2070, 1}, {2080, 0},
        {2090, 0}, {2100, 1}, {2110, 1}, {2120, 3}, {2130, 2}, {2140, 1}, {2150, 1}, {2160, 1}, {2170, 1},
        {2180, 1}, {2190, 1}, {2200, 2}, {2210, 0}, {2220, 0}, {2230, 2},
        // Notes of the log
        {3000, 2}, {3010, 2}, {3020, 2}, {3030, 2}, {3040, 1}, {3050, 1}, {3060, 3}, {3070, 4}, {3080, 4},
        {3090, 2}, {3100, 2}, {3110, 1}, {3120, 1}, {3130, 4}, {3140, 4},
        // Domain types
        {4000, 0}, {4010, 0}, {4020, 0},
    };
    // clang-format on
    for (std::uint32_t caption = 50000; caption <= 50029; ++caption) all[caption] = 0;
    return all;
}

std::string PathOf(const std::string& language) {
    return WXBRG_LANGUAGE_LIBRARIES "wxbrg" + language + ".dll";
}

class Library {
  public:
    explicit Library(const std::string& language)
        : handle_(dlopen(PathOf(language).c_str(), RTLD_NOW | RTLD_LOCAL), dlclose) {
        if (!handle_) throw std::runtime_error(dlerror());
    }

    std::uint32_t AbiVersion() const {
        return Function<LanguageLibraryAbi::VersionFunction>(LanguageLibraryAbi::versionFunctionName)();
    }

    /// Null where the number has no text.
    const char* Find(std::uint32_t number) const {
        return Function<LanguageLibraryAbi::MessageFunction>(LanguageLibraryAbi::messageFunctionName)(number);
    }

    std::string Text(std::uint32_t number) const {
        const char* text = Find(number);
        return text ? text : "no text of " + std::to_string(number);
    }

  private:
    template <typename T>
    T* Function(const char* name) const {
        void* address = dlsym(handle_.get(), name);
        if (!address) throw std::runtime_error(dlerror());
        return reinterpret_cast<T*>(address);
    }

    std::unique_ptr<void, int (*)(void*)> handle_;
};

class EachLibrary : public ::testing::TestWithParam<const char*> {
  protected:
    const Library library{GetParam()};
};

/// The libraries whose texts people read.
class EachWrittenLibrary : public EachLibrary {};

std::string LanguageOf(const ::testing::TestParamInfo<const char*>& parameter) {
    return parameter.param;
}

INSTANTIATE_TEST_SUITE_P(, EachLibrary, ::testing::Values("ENU", "DEU", "TST"), LanguageOf);
INSTANTIATE_TEST_SUITE_P(, EachWrittenLibrary, ::testing::Values("ENU", "DEU"), LanguageOf);

TEST_P(EachLibrary, TellsTheAbiVersionOfItsHeader) {
    EXPECT_EQ(library.AbiVersion(), LanguageLibraryAbi::version);
}

TEST_P(EachLibrary, HasATextForEachNumberOfTheProgramAndForNoOther) {
    const auto numbers = AllNumbers();
    for (std::uint32_t number = 0; number <= 0x10000; ++number) {
        const char* text = library.Find(number);
        if (numbers.contains(number)) {
            ASSERT_TRUE(text) << number;
            EXPECT_STRNE(text, "") << number;
        } else {
            EXPECT_FALSE(text) << number << ": " << text;
        }
    }
}

TEST_P(EachLibrary, HasNoTextForNumbersAtTheEndOfTheRange) {
    EXPECT_EQ(library.Find(0x7FFFFFFF), nullptr);
    EXPECT_EQ(library.Find(0x80000000), nullptr);
    EXPECT_EQ(library.Find(0xFFFFFFFF), nullptr);
    EXPECT_EQ(library.Find(0x10000 + 1000), nullptr);
}

TEST_P(EachWrittenLibrary, UsesExactlyTheArgumentsThatTheProgramPasses) {
    for (const auto& [number, arguments] : AllNumbers()) {
        const std::string text = library.Text(number);
        for (int position = 1; position <= 9; ++position) {
            const std::string placeholder = "%" + std::to_string(position) + "$s";
            if (position <= arguments) {
                EXPECT_THAT(text, HasSubstr(placeholder)) << number;
            } else {
                EXPECT_THAT(text, Not(HasSubstr(placeholder))) << number;
            }
        }
    }
}

TEST_P(EachWrittenLibrary, BreaksLinesWithCarriageReturnAndLineFeedOnly) {
    for (const auto& [number, arguments] : AllNumbers()) {
        std::string text = library.Text(number);
        for (std::size_t at = 0; (at = text.find("\r\n", at)) != std::string::npos;) text.erase(at, 2);
        EXPECT_EQ(text.find_first_of("\r\n"), std::string::npos) << number;
    }
}

TEST_P(EachWrittenLibrary, KeepsNotesWordsAndCaptionsToOneLineWithoutANumberText) {
    for (const auto& [number, arguments] : AllNumbers()) {
        if (number < 3000) continue;
        EXPECT_THAT(library.Text(number), Not(HasSubstr("\n"))) << number;
        EXPECT_THAT(library.Text(number), Not(HasSubstr("WXB"))) << number;
    }
}

TEST_P(EachWrittenLibrary, BeginsTheHeadersOfBoxesWithTheNumberText) {
    for (const std::uint32_t header : {1000u, 1010u, 1040u})
        EXPECT_THAT(library.Text(header), StartsWith("%1$s")) << header;
}

TEST_P(EachWrittenLibrary, NamesThreeDifferentDomainTypes) {
    EXPECT_NE(library.Text(4000), library.Text(4010));
    EXPECT_NE(library.Text(4000), library.Text(4020));
    EXPECT_NE(library.Text(4010), library.Text(4020));
}

TEST(LanguageLibraries, HoldEnglishTexts) {
    const Library library("ENU");
    EXPECT_EQ(library.Text(3060), "Object \"%1$s\" (%2$s) is mapped to %3$s.");
    EXPECT_EQ(library.Text(1020), "\r\nWhat happened:");
    EXPECT_EQ(library.Text(1010), "%1$sThe export needs your attention.\r\nPlace in the program: %2$s");
    EXPECT_EQ(library.Text(4010), "Whole number");
    EXPECT_EQ(library.Text(50011), "ARIS object '&ERM domain'");
    EXPECT_EQ(library.Text(50029), "OK");
}

TEST(LanguageLibraries, HoldGermanTextsInUtf8) {
    const Library library("DEU");
    EXPECT_EQ(library.Text(3060), "Objekt \"%1$s\" (%2$s) wird zu %3$s.");
    EXPECT_EQ(library.Text(4000), "Gleitkommazahl");
    EXPECT_EQ(library.Text(50011), "ARIS-Objekt '&ERM-Dom\xC3\xA4ne'");
    EXPECT_EQ(library.Text(50013),
              "\xC3\x9C"
              "bergan&gsbedingungen");
    EXPECT_EQ(library.Text(50028), "Abbrechen");
}

TEST(LanguageLibraries, ShowNumberAndAllArgumentsInTheArtificialLanguage) {
    const Library library("TST");
    for (const auto& [number, arguments] : AllNumbers())
        EXPECT_EQ(library.Text(number), std::to_string(number) + "|%1$s|%2$s|%3$s|%4$s");
}

TEST(LanguageLibraries, CanBeLoadedSideBySide) {
    const Library english("ENU");
    const Library german("DEU");
    const Library artificial("TST");
    EXPECT_EQ(english.Text(50027), "&Apply");
    EXPECT_EQ(german.Text(50027), "\xC3\x9C&bernehmen");
    EXPECT_EQ(artificial.Text(50027), "50027|%1$s|%2$s|%3$s|%4$s");
}

TEST(LanguageLibraries, LeaveTheProcessWhenTheyAreUnloaded) {
    { const Library library("DEU"); }
    EXPECT_EQ(dlopen(PathOf("DEU").c_str(), RTLD_NOW | RTLD_NOLOAD), nullptr);
}

}  // namespace
}  // namespace wxbrg
