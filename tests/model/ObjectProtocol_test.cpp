#include "model/ObjectProtocol.h"

#include <gmock/gmock.h>

#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ObjectProtocolTest : public CoreTest {
  protected:
    static std::string Unread() { throw std::logic_error("read behind a shut gate"); }
};

TEST_F(ObjectProtocolTest, ATextIsConvertedAndQuoted) {
    std::string property = "before";
    SetupText("modTest.Text", property, true, NameKind::description, [] {
        return std::string("it's");
    });
    EXPECT_EQ(property, "'it''s'");
}

TEST_F(ObjectProtocolTest, AnEmptyTextLeavesThePropertyAsItIs) {
    std::string property = "before";
    gBlock.gOptUseOtherSettings = true;
    SetupText("modTest.Text", property, true, NameKind::objectName, [] {
        return std::string();
    });
    SetupSettings("modTest.Settings", property, [] {
        return std::string();
    });
    EXPECT_EQ(property, "before");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ObjectProtocolTest, BehindAShutGateNothingIsRead) {
    std::string property = "before";
    SetupText("modTest.Text", property, false, NameKind::description, Unread);
    SetupSettings("modTest.Settings", property, Unread);
    EXPECT_EQ(property, "before");
}

TEST_F(ObjectProtocolTest, SettingsAreTakenAsRead) {
    std::string property;
    gBlock.gOptUseOtherSettings = true;
    SetupSettings("modTest.Settings", property, Function("f")->With(985, "it's\t"),
                  "ACTIVITY_START_CONDITION");
    EXPECT_EQ(property, "it's\t");
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(ObjectProtocolTest, AFillingThatIsFinishedIsNotedAndNotRepeated) {
    bool finished = false;
    std::string name;
    for (int i = 0; i < 2; ++i)
        SetupOnce("modTest.Setup", finished, "KIND", name, [&] {
            EXPECT_FALSE(finished);
            name += "x";
        });
    EXPECT_TRUE(finished);
    EXPECT_EQ(name, "x");
    EXPECT_THAT(Notes(), ElementsAre("I3090|KIND|x"));
}

TEST_F(ObjectProtocolTest, AnUnnamedObjectsNoteKeepsItsPlaceholders) {
    NoteMapped(Function(""), "KIND");
    NoteMapped(Function("Check"), "KIND");
    EXPECT_THAT(Notes(), ElementsAre("I3060", "I3060|Check|T22|KIND"));
}

TEST_F(ObjectProtocolTest, FurtherObjectsAreNotedBehindTheFirst) {
    const Ref<FakeObject> a = Function("a");
    NoteFurtherIgnored({}, "ONE", "OTHER");
    NoteFurtherIgnored(ObjectsOf({a}), "ONE", "OTHER");
    EXPECT_THAT(Notes(), IsEmpty());
    NoteFurtherIgnored(ObjectsOf({a, Event("b")}), "ONE", "OTHER");
    EXPECT_THAT(Notes(), ElementsAre("E3000|ONE|OTHER", "I3030|b|T18"));
}

TEST_F(ObjectProtocolTest, AnObjectIsRegisteredBeforeItIsFilled) {
    struct Thing {
        ARISObjDef ARISObjectDefinition;
        Collection<Ref<Thing>>* registry = nullptr;
        bool filled = false;
        void SetupProperties() { filled = registry != nullptr && registry->Item(1).Get() == this; }
    };
    Collection<Ref<Thing>> registry;
    const Ref<FakeObject> object = Function("f");
    const Ref<Thing> thing =
        AddARISMapping({"modTest.Add", "ACTIVITY", "THING", "THING"}, object, registry, [&](Thing& made) {
            EXPECT_TRUE(registry.IsEmpty());
            made.registry = &registry;
        });
    EXPECT_TRUE(thing->filled);
    EXPECT_EQ(thing->ARISObjectDefinition, ARISObjDef(object));
    EXPECT_THAT(Notes(), ElementsAre("I3060|f|T22|THING"));
}

TEST_F(ObjectProtocolTest, EarlyEndsRestoreTheNameOfTheCaller) {
    struct Thing {
        ARISObjDef ARISObjectDefinition;
        void SetupProperties() {}
    };
    const Ref<FakeObject> object = Function("f");
    Collection<Ref<Thing>> registry;
    registry.Add(gBlock.gPool.Create<Thing>(), object->Guid());
    std::string property;
    bool finished = true;
    SetupOnce("modTest.Setup", finished, "KIND", property, [] {
        Unread();
    });
    SetupText("modTest.Text", property, false, NameKind::description, Unread);
    SetupSettings("modTest.Settings", property, Unread);
    SetupNeighbour({"modTest.Neighbour", "ACTIVITY_PERSON", NameOfPerson, {}, {}}, object, property,
                   [](const ARISObjDef&) {
                       Unread();
                   });
    EXPECT_EQ(AddARISMapping({"modTest.Add", "ACTIVITY", "THING", "THING"}, object, registry),
              registry.Item(1));
    EXPECT_EQ(gBlock.gCurrentProcedure, "modTest.Test");
    EXPECT_EQ(property, "");
    EXPECT_THAT(Notes(), IsEmpty());
}

}  // namespace
}  // namespace wxbrg::test
