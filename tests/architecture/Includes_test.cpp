#include "tests/architecture/Includes.h"

#include <gmock/gmock.h>

namespace wxbrg::architecture {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(QuotedIncludesOf, FindsThemInOrder) {
    EXPECT_THAT(
        QuotedIncludesOf("#include \"run/Frame.h\"\n#include <string>\n\n#include \"Text.h\"\nint x;\n"),
        ElementsAre("run/Frame.h", "Text.h"));
}

TEST(QuotedIncludesOf, AllowsBlanksAroundTheHashAndIndentation) {
    EXPECT_THAT(QuotedIncludesOf("  #  include\t\"aris/Catalogue.h\"  // why"),
                ElementsAre("aris/Catalogue.h"));
}

TEST(QuotedIncludesOf, TakesTheLastLineWithoutALineBreakAndCarriageReturns) {
    EXPECT_THAT(QuotedIncludesOf("#include \"a\"\r\n#include \"b\""), ElementsAre("a", "b"));
}

TEST(QuotedIncludesOf, PassesOverOtherDirectivesAndText) {
    EXPECT_THAT(QuotedIncludesOf(
                    "#pragma once\n#define include \"x.h\"\n#if 1\n// #include \"y.h\"\n#include MACRO\n#\n"),
                IsEmpty());
}

}  // namespace
}  // namespace wxbrg::architecture
