// Where activities and the objects between them come to stand in the window.

#include <gmock/gmock.h>

#include <limits>

#include "model/clsACTIVITY.h"
#include "model/clsPROCESS.h"
#include "model/modPoint.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t farthest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t nearest = std::numeric_limits<std::int32_t>::min();

class LayoutTest : public CoreTest {
  protected:
    struct Place {
        std::int32_t x;
        std::int32_t y;
    };
    /// The process of activities at the given places.
    Ref<clsPROCESS> Laid(std::initializer_list<Place> places) {
        char name = 'a';
        for (const Place& place : places) Function(std::string(1, name++), place.x, place.y);
        return ProcessWithActivities();
    }
    static std::vector<std::string> Layouts(const Ref<clsPROCESS>& process) {
        process->PROCESS_SetupProperty_ACTIVITY_LAYOUT();
        std::vector<std::string> layouts;
        for (const Ref<clsACTIVITY>& activity : process->Col_ACTIVITY) layouts.push_back(activity->LAYOUT);
        return layouts;
    }
};

TEST_F(LayoutTest, WithoutActivitiesNothingChangesButTheFlag) {
    const Ref<clsPROCESS> process = Laid({});
    EXPECT_TRUE(process->LayoutConversionFinished);
    EXPECT_EQ(process->MinXPos, 99999999);
    EXPECT_EQ(process->MinYPos, 99999999);
    EXPECT_EQ(process->MaxXPos, 0);
    EXPECT_EQ(process->ShrinkFactor, 1.0);
    EXPECT_EQ(process->X_ContingencyOffset, 0);
}

TEST_F(LayoutTest, OneActivityStandsInTheMiddle) {
    const Ref<clsPROCESS> process = Laid({{100, 200}});
    EXPECT_EQ(process->MinXPos, 100);
    EXPECT_EQ(process->MaxXPos, 100);
    EXPECT_EQ(process->MinYPos, 200);
    EXPECT_EQ(process->MaxYPos, 200);
    EXPECT_EQ(process->X_ContingencyOffset, 100);
    EXPECT_EQ(process->Y_ContingencyOffset, 200);
    EXPECT_TRUE(process->Col_ACTIVITY.Item(1)->LayoutConversionFinished);
    EXPECT_THAT(Layouts(process), ElementsAre("XPOS 0 YPOS 0"));
}

TEST_F(LayoutTest, ASmallModelIsMovedToTheMiddleAndTurnedUp) {
    const Ref<clsPROCESS> process = Laid({{100, 100}, {400, 900}, {1000, 300}});
    EXPECT_EQ(process->ShrinkFactor, 1.0);
    EXPECT_THAT(Layouts(process),
                ElementsAre("XPOS -450 YPOS 400", "XPOS -150 YPOS -400", "XPOS 450 YPOS 200"));
}

TEST_F(LayoutTest, ALargeModelShrinksOnBothAxesByOneFactor) {
    const Ref<clsPROCESS> process = Laid({{0, 0}, {100000, 10000}});
    EXPECT_EQ(process->X_ContingencyOffset, -10000);
    EXPECT_EQ(process->Y_ContingencyOffset, -1000);
    EXPECT_EQ(process->ShrinkFactor, 21000.0 / 120000);
    EXPECT_THAT(Layouts(process), ElementsAre("XPOS -8750 YPOS 875", "XPOS 8750 YPOS -875"));
}

TEST_F(LayoutTest, TheTallerAxisDecidesWhereItIsTheLarger) {
    const Ref<clsPROCESS> process = Laid({{0, 0}, {10000, 100000}});
    EXPECT_EQ(process->ShrinkFactor, 0.175);
}

TEST_F(LayoutTest, AModelThatJustFitsDoesNotShrink) {
    EXPECT_EQ(Laid({{0, 0}, {17500, 0}})->ShrinkFactor, 1.0);
    gBlock.gColPROCESS = {};
    Function("z", 17501, 0);
    EXPECT_EQ(ProcessWithActivities()->ShrinkFactor, 21000.0 / 21001);
}

TEST_F(LayoutTest, HalfPositionsAreFloored) {
    EXPECT_THAT(Layouts(Laid({{0, 0}, {1, 1}})), ElementsAre("XPOS -1 YPOS 0", "XPOS 0 YPOS -1"));
}

struct Margin {
    std::int32_t span;
    std::int32_t margin;
};

TEST_F(LayoutTest, MarginsAreRoundedToTheEvenNeighbour) {
    for (const Margin& row : {Margin{5, 0}, Margin{15, 2}, Margin{25, 2}, Margin{35, 4}, Margin{36, 4},
                              Margin{44, 4}, Margin{46, 5}}) {
        gBlock.gColPROCESS = {};
        model = repository.Model(processType, "Orders", group);
        const Ref<clsPROCESS> process = Laid({{1000, 0}, {1000 + row.span, 0}});
        EXPECT_EQ(process->X_ContingencyOffset, 1000 - row.margin) << row.span;
    }
}

TEST_F(LayoutTest, MaximaStartFromZeroSoThatNegativePositionsAreNotCentred) {
    const Ref<clsPROCESS> process = Laid({{-300, -100}, {-100, -100}});
    EXPECT_EQ(process->MinXPos, -300);
    EXPECT_EQ(process->MaxXPos, 0);
    EXPECT_EQ(process->MaxYPos, 0);
    EXPECT_THAT(Layouts(process), ElementsAre("XPOS -150 YPOS 50", "XPOS 50 YPOS 50"));
}

TEST_F(LayoutTest, MinimaStartFromALargeNumber) {
    const Ref<clsPROCESS> process = Laid({{200000000, 0}});
    EXPECT_EQ(process->MinXPos, 99999999);
    EXPECT_EQ(process->MaxXPos, 200000000);
}

TEST_F(LayoutTest, PositionsWhoseSumsLeave32BitsEndTheRun) {
    for (const std::initializer_list<Place>& places : {std::initializer_list<Place>{{nearest, 0}},
                                                       {{-2000000000, 0}, {2000000000, 0}},
                                                       {{2000000000, 0}, {2000000000, 0}},
                                                       {{0, farthest}}}) {
        gBlock.gColPROCESS = {};
        model = repository.Model(processType, "Orders", group);
        EXPECT_EQ(EndOf([&] {
                      Laid(places);
                  }),
                  FailureKind::overflow);
        EXPECT_EQ(Boxes().back(), "C6 in clsPROCESS.ConvertARISLayoutToWPXLayout: overflow");
    }
}

TEST_F(LayoutTest, AnActivityWithoutAPositionIsAWarning) {
    clsACTIVITY activity;
    activity.ARISObjectDefinition = Function("Check");
    activity.SetupProperty_LAYOUT();
    EXPECT_EQ(activity.LAYOUT, "");
    EXPECT_THAT(Boxes(), ElementsAre("E2070 in clsACTIVITY.SetupProperty_LAYOUT: Check"));
}

class CenterTest : public LayoutTest {
  protected:
    /// The mean of objects at the given places of the window, whose middle is at 0, 0.
    std::string Center(std::initializer_list<Place> places) {
        Collection<ARISObjDef> objects;
        for (const Place& place : places) objects.Add(Drawn(ObjectType::event, "e", place.x, -place.y));
        return Center(objects);
    }
    std::string Center(const Collection<ARISObjDef>& objects) {
        const std::optional<clsPoint> point = CalculateGraphicalCenterOfARISObjects(objects, *process);
        return point ? std::to_string(point->XPos) + "," + std::to_string(point->YPos) : "none";
    }
    std::int32_t EndAt(std::int32_t x, std::int32_t y) {
        return EndOf([&] {
            Center({{x, y}});
        });
    }

    Ref<clsPROCESS> process = Laid({{0, 0}});
};

TEST_F(CenterTest, NoObjectsHaveNoCentre) {
    EXPECT_EQ(Center(Collection<ARISObjDef>()), "none");
}

TEST_F(CenterTest, ObjectsThatAreNotInTheModelDoNotCount) {
    EXPECT_EQ(Center(ObjectsOf({DrawnElsewhere(ObjectType::event, "e")})), "0,0");
    EXPECT_EQ(
        Center(ObjectsOf({DrawnElsewhere(ObjectType::event, "e"), Drawn(ObjectType::event, "f", 10, -20)})),
        "10,20");
}

TEST_F(CenterTest, TheFirstOccurrenceInTheModelCounts) {
    const Ref<FakeObject> object = DrawnElsewhere(ObjectType::event, "e");
    repository.Draw(model, object, 7, -8);
    repository.Draw(model, object, 70, -80);
    EXPECT_EQ(Center(ObjectsOf({object})), "7,8");
}

TEST_F(CenterTest, TheMeanIsWorkedOutStepByStepAndFlooredTwiceEach) {
    EXPECT_EQ(Center({{10, 0}, {24, 0}, {40, 0}}), "24,0");
    EXPECT_EQ(Center({{10, -1}}), "10,-1");
    EXPECT_EQ(Center({{-5, 5}, {-5, 5}}), "-6,4");
    EXPECT_EQ(Center({{1, -1}, {1, -1}, {1, -1}}), "0,-3");
}

TEST_F(CenterTest, AnObjectThatIsDrawnTwiceInTheListCountsTwice) {
    Collection<ARISObjDef> objects;
    const Ref<FakeObject> object = Drawn(ObjectType::event, "e", 100, 0);
    objects.Add(object);
    objects.Add(object);
    objects.Add(Drawn(ObjectType::event, "f", 400, 0));
    EXPECT_EQ(Center(objects), "199,0");
}

TEST_F(CenterTest, AnObjectOutsideTheWindowIsDrawnBackToItsEdge) {
    EXPECT_EQ(Center({{20000, -20000}}), "10450,-10450");
    EXPECT_EQ(Center({{10451, -10451}}), "10450,-10450");
    EXPECT_EQ(Center({{10450, -10450}}), "10450,-10450");
    EXPECT_EQ(Center({{32767, -32767}}), "10450,-10450");
}

TEST_F(CenterTest, AnObjectBeyond16BitsEndsTheRun) {
    EXPECT_EQ(EndAt(32768, 0), FailureKind::overflow);
    EXPECT_EQ(EndAt(0, 32768), FailureKind::overflow);
    EXPECT_EQ(EndAt(-32769, 0), FailureKind::overflow);
    EXPECT_EQ(EndAt(-32768, 0), FailureKind::overflow);
    EXPECT_EQ(EndAt(0, -32768), FailureKind::overflow);
    EXPECT_EQ(Boxes().back(), "C6 in modPoint.CalculateGraphicalCenterOfARISObjects: overflow");
}

TEST_F(CenterTest, ObjectsAreCountedIn16Bits) {
    constexpr int most = std::numeric_limits<std::int16_t>::max() - 1;
    const Ref<FakeObject> object = Drawn(ObjectType::event, "e");
    Collection<ARISObjDef> objects;
    for (int i = 0; i < most; ++i) objects.Add(object);
    EXPECT_EQ(Center(objects), "0,0");
    objects.Add(DrawnElsewhere(ObjectType::event, "not counted"));
    EXPECT_EQ(Center(objects), "0,0");
    objects.Add(object);
    EXPECT_EQ(EndOf([&] {
                  Center(objects);
              }),
              FailureKind::overflow);
}

TEST_F(CenterTest, ObjectsShrinkWithTheirProcess) {
    gBlock.gColPROCESS = {};
    Function("far", 120000, 0);
    Function("wide", 0, 0);
    process = ProcessWithActivities();
    EXPECT_EQ(process->ShrinkFactor, 21000.0 / 144000);
    EXPECT_EQ(Center(ObjectsOf({Drawn(ObjectType::event, "e", 60001, 3)})), "0,-1");
    EXPECT_EQ(Center(ObjectsOf({Drawn(ObjectType::event, "f", 59999, -7)})), "-1,1");
}

}  // namespace
}  // namespace wxbrg::test
