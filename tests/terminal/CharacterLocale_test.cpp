#include "platform/terminal/form/CharacterLocale.h"

#include <gtest/gtest.h>
#include <langinfo.h>

#include <clocale>
#include <string>

#include "tests/platform/EnvironmentVariable.h"

namespace wxbrg {
namespace {

TEST(CharacterLocale, AUserWithoutALocaleHasUtf8) {
    for (const char* const locale : {"C", "POSIX", "no_such_LOCALE"}) {
        const EnvironmentVariable variable("LC_ALL", locale);
        const CharacterLocale characters;
        EXPECT_STREQ(nl_langinfo(CODESET), "UTF-8") << locale;
    }
}

TEST(CharacterLocale, WhatWasSetComesBack) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    { const CharacterLocale characters; }
    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
}

}  // namespace
}  // namespace wxbrg
