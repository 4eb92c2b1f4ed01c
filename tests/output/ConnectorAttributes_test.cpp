// The attributes of the objects on a connector's paths, as one text.

#include <gmock/gmock.h>

#include "mapping/modPath.h"
#include "output/modWPXWriter.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;

constexpr std::string_view rule = "CONTROL_CONNECTOR_DESCRIPTION";

class ConnectorAttributesTest : public CoreTest {
  protected:
    /// A path over objects, added to the paths.
    void AddPath(std::initializer_list<ARISObjDef> objects) {
        const Ref<clsPath> path = CreatePath({}, {});
        for (const ARISObjDef& object : objects)
            path->ColARISObjectDefinitionsOnPath.Add(object, object->Guid());
        paths.Add(path);
    }

    PathCollection paths;
};

TEST_F(ConnectorAttributesTest, ALineForEachObjectThatHasTheAttributeOfTheRule) {
    const Ref<FakeObject> event = Event("it's")->With(9, "one\r\ntwo");
    AddPath({event, Event("without")});
    AddPath({});
    AddPath({RuleObject("rule")->With(9, "three"), event});
    EXPECT_EQ(SetupPrintingOfConnectorAttribute(paths, rule),
              "\r\n\t\t\tT18 'it's' one two\r\n\t\t\tT50 'rule' three\r\n\t\t\tT18 'it's' one two");
}

TEST_F(ConnectorAttributesTest, AnObjectThatIsNotDrawnAnywhereIsPassedOver) {
    AddPath({repository.Object(ObjectType::event, "undrawn")->With(9, "text"),
             DrawnElsewhere(ObjectType::event, "elsewhere")->With(9, "text")});
    EXPECT_EQ(SetupPrintingOfConnectorAttribute(paths, rule), "\r\n\t\t\tT18 'elsewhere' text");
    EXPECT_EQ(SetupPrintingOfConnectorAttribute(paths), "\r\n\t\t\tT18 'elsewhere' (A9): text");
}

TEST_F(ConnectorAttributesTest, ARuleThatReadsTheNameGivesItTwice) {
    NewAttributeRule("NAME", "-1");
    AddPath({Event("event")});
    EXPECT_EQ(SetupPrintingOfConnectorAttribute(paths, "NAME"), "\r\n\t\t\tT18 'event' event");
}

TEST_F(ConnectorAttributesTest, WithoutARuleEveryAttributeThatHasATextIsALine) {
    const Ref<FakeObject> event = Event("event")->With(9, "nine")->With(8, "")->With(985, "a\r\nb");
    event->SetUnmaintained(498);
    AddPath({event, Event("without")});
    EXPECT_EQ(SetupPrintingOfConnectorAttribute(paths),
              "\r\n\t\t\tT18 'event' (A9): nine\r\n\t\t\tT18 'event' (A985): a b");
    EXPECT_EQ(SetupPrintingOfConnectorAttribute(paths, ""), SetupPrintingOfConnectorAttribute(paths));
    gBlock.gOptRemoveLineBreaks = false;
    EXPECT_EQ(SetupPrintingOfConnectorAttribute(paths),
              "\r\n\t\t\tT18 'event' (A9): nine\r\n\t\t\tT18 'event' (A985): a\r\nb");
}

TEST_F(ConnectorAttributesTest, NothingGivesNothing) {
    EXPECT_EQ(SetupPrintingOfConnectorAttribute(paths, rule), "");
    EXPECT_EQ(SetupPrintingOfConnectorAttribute(paths), "");
    AddPath({Event("without")});
    EXPECT_EQ(SetupPrintingOfConnectorAttribute(paths, rule), "");
    EXPECT_EQ(SetupPrintingOfConnectorAttribute(paths), "");
}

TEST_F(ConnectorAttributesTest, AnUnknownRuleEndsTheRun) {
    AddPath({Event("event")});
    EXPECT_EQ(EndOf([&] {
                  SetupPrintingOfConnectorAttribute(paths, "NO_RULE");
              }),
              2100);
    EXPECT_THAT(Boxes(), ElementsAre("C2100 in modMappingRule.Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule: "
                                     "NO_RULE"));
}

}  // namespace
}  // namespace wxbrg::test
