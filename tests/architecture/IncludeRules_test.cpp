#include "tests/architecture/IncludeRules.h"

#include <gmock/gmock.h>

namespace wxbrg::architecture {
namespace {

using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<Violation> Check(std::string_view file, const std::string& include) {
    return IncludeViolations(file, {{include, true}});
}

TEST(IncludesOf, FindsBothFormsInOrder) {
    EXPECT_THAT(IncludesOf("#include \"run/Frame.h\"\n\n#include <string>\nint x;\n"),
                ElementsAre(Include{"run/Frame.h", true}, Include{"string", false}));
}

TEST(IncludesOf, AllowsBlanksAroundTheHashAndIndentation) {
    EXPECT_THAT(IncludesOf("  #  include\t\"aris/Catalogue.h\"  // why"),
                ElementsAre(Include{"aris/Catalogue.h", true}));
}

TEST(IncludesOf, TakesTheLastLineWithoutALineBreakAndCarriageReturns) {
    EXPECT_THAT(IncludesOf("#include <a>\r\n#include <b>"),
                ElementsAre(Include{"a", false}, Include{"b", false}));
}

TEST(IncludesOf, PassesOverOtherDirectivesAndText) {
    EXPECT_THAT(
        IncludesOf("#pragma once\n#define include \"x.h\"\n#if 1\n// #include \"y.h\"\n#include MACRO\n#\n"),
        IsEmpty());
}

TEST(IncludeRules, HeaderMayIncludeItsOwnRoomAndEarlierOnes) {
    EXPECT_THAT(Check("model/clsPROCESS.h", "model/clsACTIVITY.h"), IsEmpty());
    EXPECT_THAT(Check("model/clsPROCESS.h", "data/clsDATA_STRUCTURE.h"), IsEmpty());
    EXPECT_THAT(Check("model/clsPROCESS.h", "support/Collection.h"), IsEmpty());
    EXPECT_THAT(Check("cli/Commands.h", "output/modWPXWriter.h"), IsEmpty());
}

TEST(IncludeRules, HeaderMustNotIncludeALaterRoom) {
    EXPECT_THAT(Check("data/clsDATA_STRUCTURE.h", "model/clsACTIVITY.h"),
                ElementsAre(Violation{"model/clsACTIVITY.h", "\"data\" comes before \"model\""}));
    EXPECT_THAT(Check("support/Text.h", "platform/Clock.h"), testing::SizeIs(1));
    EXPECT_THAT(Check("output/modWPXWriter.h", "cli/Commands.h"), testing::SizeIs(1));
}

TEST(IncludeRules, SourcesOfRunToOutputMayIncludeHeadersOfAllOfThem) {
    EXPECT_THAT(Check("run/modMain.cpp", "output/modWPXWriter.h"), IsEmpty());
    EXPECT_THAT(Check("data/modDATA_MEMBER.cpp", "model/clsACTIVITY.h"), IsEmpty());
    EXPECT_THAT(Check("output/modWPXWriter.cpp", "run/modGlobals.h"), IsEmpty());
}

TEST(IncludeRules, SourcesOfRunToOutputMustNotIncludeTheCommandLineTool) {
    EXPECT_THAT(Check("run/modMain.cpp", "cli/Commands.h"),
                ElementsAre(Violation{"cli/Commands.h", "\"run\" comes before \"cli\""}));
}

TEST(IncludeRules, SourcesBelowRunKnowNothingOfLaterRooms) {
    EXPECT_THAT(Check("support/Text.cpp", "run/modGlobals.h"), testing::SizeIs(1));
    EXPECT_THAT(Check("platform/FileDialog.cpp", "run/modGlobals.h"), testing::SizeIs(1));
    EXPECT_THAT(Check("platform/posix/Clock.cpp", "aris/Repository.h"), testing::SizeIs(1));
    EXPECT_THAT(Check("aris/xml/Reader.cpp", "run/modGlobals.h"), testing::SizeIs(1));
}

TEST(IncludeRules, ImplementationsMayIncludeThemselvesAndWhatTheyImplement) {
    EXPECT_THAT(Check("platform/posix/Clock.cpp", "platform/posix/Clock.h"), IsEmpty());
    EXPECT_THAT(Check("platform/posix/Clock.h", "platform/Clock.h"), IsEmpty());
    EXPECT_THAT(Check("aris/xml/Reader.cpp", "aris/xml/Store.h"), IsEmpty());
}

TEST(IncludeRules, NoOtherFileIncludesAnImplementation) {
    EXPECT_THAT(Check("run/modMain.cpp", "platform/posix/Clock.h"),
                ElementsAre(Violation{"platform/posix/Clock.h",
                                      "\"platform/posix\" is for main.cpp and tests alone"}));
    EXPECT_THAT(Check("platform/Platform.h", "platform/scripted/Answers.h"), testing::SizeIs(1));
    EXPECT_THAT(Check("platform/qt/View.cpp", "platform/posix/Clock.h"), testing::SizeIs(1));
    EXPECT_THAT(Check("cli/Commands.cpp", "aris/xml/XmlRepository.h"), testing::SizeIs(1));
    EXPECT_THAT(Check("aris/Repository.cpp", "aris/com/Automation.h"), testing::SizeIs(1));
}

TEST(IncludeRules, OnlyTheCommandLineToolIncludesTheScriptedPlatform) {
    EXPECT_THAT(Check("cli/Replay.cpp", "platform/scripted/Answers.h"), IsEmpty());
    EXPECT_THAT(Check("cli/Replay.h", "platform/scripted/Answers.h"), IsEmpty());
    EXPECT_THAT(Check("run/modMain.cpp", "platform/scripted/Answers.h"), testing::SizeIs(1));
}

TEST(IncludeRules, MainAndTestsIncludeWhatTheyLike) {
    EXPECT_THAT(Check("cli/main.cpp", "platform/posix/Clock.h"), IsEmpty());
    EXPECT_THAT(Check("cli/main.cpp", "aris/xml/XmlRepository.h"), IsEmpty());
    EXPECT_THAT(Check("tests/core/Frame_test.cpp", "platform/scripted/Answers.h"), IsEmpty());
}

TEST(IncludeRules, AFileThatMerelyEndsInMainIsNoMain) {
    EXPECT_THAT(Check("run/modmain.cpp", "platform/posix/Clock.h"), testing::SizeIs(1));
    EXPECT_THAT(Check("cli/not_main.cpp", "platform/posix/Clock.h"), testing::SizeIs(1));
}

TEST(IncludeRules, QuotedFilesAreNamedFromTheRootAndLieInARoom) {
    EXPECT_THAT(Check("support/Text.cpp", "Text.h"),
                ElementsAre(Field(&Violation::reason, HasSubstr("named from the root"))));
    EXPECT_THAT(Check("run/modMain.cpp", "tests/core/Fakes.h"), testing::SizeIs(1));
    EXPECT_THAT(Check("run/modMain.cpp", "../support/Text.h"), testing::SizeIs(1));
}

TEST(IncludeRules, OnlySourcesOfImplementationsKnowTheLanguageLibraries) {
    EXPECT_THAT(Check("platform/posix/Languages.cpp", "lang/LanguageLibraryAbi.h"), IsEmpty());
    EXPECT_THAT(Check("platform/posix/Languages.h", "lang/LanguageLibraryAbi.h"), testing::SizeIs(1));
    EXPECT_THAT(Check("platform/LanguageLibrary.cpp", "lang/LanguageLibraryAbi.h"), testing::SizeIs(1));
    EXPECT_THAT(Check("options/MessageTexts.cpp", "lang/LanguageLibraryAbi.h"), testing::SizeIs(1));
}

TEST(IncludeRules, AngleBracketsHideNoRoom) {
    EXPECT_THAT(IncludeViolations("support/Text.h", {{"run/modGlobals.h", false}, {"vector", false}}),
                ElementsAre(Field(&Violation::include, "run/modGlobals.h")));
    EXPECT_THAT(IncludeViolations("cli/Commands.cpp", {{"CLI/CLI.hpp", false}, {"sys/stat.h", false}}),
                IsEmpty());
}

TEST(IncludeRules, EachForbiddenIncludeIsReported) {
    EXPECT_THAT(
        IncludeViolations("support/Text.h", {{"run/A.h", true}, {"support/B.h", true}, {"cli/C.h", true}}),
        ElementsAre(Field(&Violation::include, "run/A.h"), Field(&Violation::include, "cli/C.h")));
}

}  // namespace
}  // namespace wxbrg::architecture
