// What all kinds of names share: the option, the notes, the failures, and the names of persons.

#include <gmock/gmock.h>

#include "mapping/NameConversion.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NameConversionTest : public CoreTest {
  protected:
    /// Converts as a procedure does that passes over the statement for which a warning is given. Returns what
    /// its variable holds then.
    static std::string ConvertInStep(std::string text, NameKind kind, std::string_view ruleName = "") {
        Procedure("modTest.Caller", [&](Frame& frame) {
            frame.Step([&] {
                text = ConvertARISName(text, kind, ruleName);
            });
            nameBehindStep = gBlock.gCurrentProcedure;
        });
        return text;
    }

    static inline std::string_view nameBehindStep;
};

TEST_F(NameConversionTest, AChangeIsNotedWithTheTextBeforeAndBehindIt) {
    EXPECT_EQ(ConvertARISName("No. 5", NameKind::objectName, ""), "No_ 5");
    EXPECT_THAT(Notes(), ElementsAre("I3100|No. 5|No_ 5"));
    EXPECT_EQ(gBlock.gCurrentProcedure, "modTest.Test");
}

TEST_F(NameConversionTest, ATextThatStaysIsNotNoted) {
    EXPECT_EQ(ConvertARISName("Order", NameKind::objectName, ""), "Order");
    EXPECT_EQ(ConvertARISName("", NameKind::description, ""), "");
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(NameConversionTest, ATextThatBecomesEmptyIsNotedWithoutTheSecond) {
    EXPECT_EQ(ConvertARISName("  ", NameKind::objectName, ""), "");
    EXPECT_THAT(Notes(), ElementsAre("I3100|  "));
}

TEST_F(NameConversionTest, AnActivityNameIsNotedByTheInnerAndTheOuterConversion) {
    EXPECT_EQ(ConvertARISName("ORDER ", NameKind::activityName, ""), "_DER");
    EXPECT_THAT(Notes(), ElementsAre("I3100|ORDER |_DER", "I3100|ORDER |_DER"));
}

TEST_F(NameConversionTest, TheInnerNoteOfAMemberNameHasTheTextWithoutItsUnderscore) {
    EXPECT_EQ(ConvertARISName("_ORDER", NameKind::memberName, ""), "_DER");
    EXPECT_THAT(Notes(), ElementsAre("I3100|ORDER|_DER", "I3100|_ORDER|_DER"));
    ForgetNotes();
    EXPECT_EQ(ConvertARISName("_Order", NameKind::memberName, ""), "Order");
    EXPECT_THAT(Notes(), ElementsAre("I3100|_Order|Order"));
}

TEST_F(NameConversionTest, ADataTypeThatChangesItsWordIsNoted) {
    EXPECT_EQ(ConvertARISName("Real", NameKind::dataType, ""), "FLOAT");
    EXPECT_EQ(ConvertARISName("LONG", NameKind::dataType, ""), "STRING");
    EXPECT_EQ(ConvertARISName("STRING", NameKind::dataType, ""), "STRING");
    EXPECT_THAT(Notes(), ElementsAre("I3100|Real|FLOAT", "I3100|LONG|STRING"));
}

TEST_F(NameConversionTest, WithTheOptionOffEveryKindGivesTheTextBack) {
    gBlock.gOptConvertNames = false;
    for (int kind = 0; kind <= 12; ++kind)
        EXPECT_EQ(ConvertARISName(" it's != AND.\t", static_cast<NameKind>(kind), ""), " it's != AND.\t")
            << kind;
    EXPECT_EQ(ConvertARISName("", NameKind::objectName, ""), "");
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(NameConversionTest, AKindThatIsNoneIsAWarningAndTheTextStays) {
    EXPECT_EQ(ConvertInStep("text", static_cast<NameKind>(12)), "text");
    EXPECT_EQ(ConvertInStep("text", static_cast<NameKind>(0)), "text");
    EXPECT_THAT(Boxes(), ElementsAre("E2040 in modMappingRule.ConvertARISName: 12|text",
                                     "E2040 in modMappingRule.ConvertARISName: 0|text"));
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(NameConversionTest, AnEmptyObjectNameIsAWarning) {
    EXPECT_EQ(ConvertInStep("", NameKind::objectName), "");
    EXPECT_THAT(Boxes(), ElementsAre("E2050 in modMappingRule.ConvertARISName"));
}

TEST_F(NameConversionTest, ItsNameStaysBehindAWarningUntilTheFrameOfTheCallerEnds) {
    ConvertInStep("", NameKind::objectName);
    EXPECT_EQ(nameBehindStep, "modMappingRule.ConvertARISName");
    EXPECT_EQ(gBlock.gCurrentProcedure, "modTest.Test");
}

TEST_F(NameConversionTest, AnUnknownRuleIsAMissingKeyInTheCallersFrame) {
    gBlock.gOptConvertNames = false;
    EXPECT_EQ(EndOf([&] {
                  ConvertInStep("text", NameKind::objectName, "NO_RULE");
              }),
              FailureKind::invalidCall);
    EXPECT_THAT(Boxes(), ElementsAre("C5 in modMappingRule.ConvertARISName: invalid call or missing key"));
    EXPECT_EQ(gBlock.gFailureContext, "Retrieve rule");
}

TEST_F(NameConversionTest, ARuleWithoutANumberIsATypeMismatchWhateverTheKind) {
    NewRule("NO_ATTRIBUTE");
    EXPECT_EQ(EndOf([&] {
                  ConvertInStep("text", NameKind::description, "NO_ATTRIBUTE");
              }),
              FailureKind::typeMismatch);
}

TEST_F(NameConversionTest, APersonIsKnownByTheLogin) {
    const Ref<FakeObject> person = Drawn(ObjectType::person, "John Doe")->With(509, "jo.doe@site");
    EXPECT_EQ(ConvertARISPersonName(person), "JO.DOE");
    EXPECT_THAT(Notes(), ElementsAre("I3100|jo.doe@site|JO.DOE"));
    EXPECT_EQ(gBlock.gCurrentProcedure, "modTest.Test");
}

TEST_F(NameConversionTest, APersonWithoutALoginIsKnownByTheNameOfWhichNothingIsCut) {
    EXPECT_EQ(ConvertARISPersonName(Drawn(ObjectType::person, "John Doe")), "JOHN_DOE");
    EXPECT_EQ(ConvertARISPersonName(Drawn(ObjectType::person, "jo@site")), "JO_SITE");
    EXPECT_EQ(ConvertARISPersonName(Drawn(ObjectType::person, "jo@site")->With(509, "")), "JO_SITE");
}

TEST_F(NameConversionTest, APersonWithNeitherHasNoName) {
    EXPECT_EQ(ConvertARISPersonName(Drawn(ObjectType::person, "")), "");
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(NameConversionTest, ALoginOfBlanksIsALogin) {
    EXPECT_EQ(ConvertARISPersonName(Drawn(ObjectType::person, "John")->With(509, "  ")), "__");
}

TEST_F(NameConversionTest, APersonsNameStaysWithTheOptionOff) {
    gBlock.gOptConvertNames = false;
    EXPECT_EQ(ConvertARISPersonName(Drawn(ObjectType::person, "x")->With(509, "jo@site")), "jo@site");
    EXPECT_EQ(ConvertARISPersonName(Drawn(ObjectType::person, "John Doe")), "John Doe");
}

TEST_F(NameConversionTest, TheLoginIsCutByTheAttributeThatTheRuleReads) {
    NewAttributeRule("PERSON_PersonName", "-1");
    EXPECT_EQ(ConvertARISPersonName(Drawn(ObjectType::person, "jo@site")), "JO_SITE");
}

}  // namespace
}  // namespace wxbrg::test
