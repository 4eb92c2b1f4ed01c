// One step along a connection.

#include <gmock/gmock.h>

#include "mapping/RelatedObjectSearch.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t cnxType = 118;

class RelatedStepTest : public CoreTest {
  protected:
    std::vector<std::string> Step(const ARISObjDef& item, std::int32_t kind,
                                  std::int32_t target = ObjectType::function) {
        Collection<ARISObjDef> result;
        return NamesOf(Find_Related_ARIS_ObjDef(result, item, kind, cnxType, target));
    }

    Ref<FakeObject> here = Function("here");
    Ref<FakeObject> there = Function("there");
};

TEST_F(RelatedStepTest, OutgoingLeadsToTargetsAndIncomingToSources) {
    repository.Connect(here, cnxType, there);
    EXPECT_THAT(Step(here, CxnKind::outgoing), ElementsAre("there"));
    EXPECT_THAT(Step(here, CxnKind::incoming), IsEmpty());
    EXPECT_THAT(Step(there, CxnKind::incoming), ElementsAre("here"));
    EXPECT_THAT(Step(there, CxnKind::outgoing), IsEmpty());
}

TEST_F(RelatedStepTest, ConnectionsOfAnotherTypeAndObjectsOfAnotherTypeDoNotCount) {
    repository.Connect(here, cnxType + 1, there);
    repository.Connect(here, cnxType, Event("event"));
    EXPECT_THAT(Step(here, CxnKind::outgoing), IsEmpty());
    EXPECT_THAT(Step(here, CxnKind::outgoing, ObjectType::event), ElementsAre("event"));
}

TEST_F(RelatedStepTest, TwoConnectionsToOneObjectGiveItOnce) {
    const Ref<FakeObject> third = Function("third");
    repository.Connect(here, cnxType, there);
    repository.Connect(here, cnxType, third);
    repository.Connect(here, cnxType, there);
    EXPECT_THAT(Step(here, CxnKind::outgoing), ElementsAre("there", "third"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(RelatedStepTest, AnObjectMayLeadToItself) {
    repository.Connect(here, cnxType, here);
    EXPECT_THAT(Step(here, CxnKind::outgoing), ElementsAre("here"));
    EXPECT_THAT(Step(here, CxnKind::incoming), ElementsAre("here"));
}

TEST_F(RelatedStepTest, WhatIsNotDrawnAnywhereDoesNotCount) {
    repository.ConnectUndrawn(here, cnxType, there);
    repository.Connect(here, cnxType, repository.Object(ObjectType::function, "drawn nowhere"));
    EXPECT_THAT(Step(here, CxnKind::outgoing), IsEmpty());
    const Ref<FakeObject> undrawn = repository.Object(ObjectType::function, "undrawn");
    repository.Connect(undrawn, cnxType, there);
    EXPECT_THAT(Step(undrawn, CxnKind::outgoing), IsEmpty());
}

TEST_F(RelatedStepTest, WhatIsDrawnInAnUnselectedModelCounts) {
    repository.Connect(here, cnxType, DrawnElsewhere(ObjectType::function, "elsewhere"));
    EXPECT_THAT(Step(here, CxnKind::outgoing), ElementsAre("elsewhere"));
    const Ref<FakeObject> from = DrawnElsewhere(ObjectType::function, "from");
    repository.Connect(from, cnxType, there);
    EXPECT_THAT(Step(from, CxnKind::outgoing), ElementsAre("there"));
}

TEST_F(RelatedStepTest, AnotherDirectionIsAWarningFollowedByAnEmptyObject) {
    repository.Connect(here, cnxType, there);
    EXPECT_EQ(EndOf([&] {
                  Step(here, 3);
              }),
              FailureKind::objectNotSet);
    EXPECT_THAT(Boxes(), ElementsAre("E2030 in modMappingRule.Find_Related_ARIS_ObjDef: 3",
                                     "C91 in modMappingRule.Find_Related_ARIS_ObjDef: object not set"));
}

TEST_F(RelatedStepTest, AnotherDirectionLooksAtTheConnectionsOfBothEnds) {
    repository.Connect(there, cnxType, here);
    EXPECT_EQ(EndOf([&] {
                  Step(here, -1);
              }),
              FailureKind::objectNotSet);
    EXPECT_EQ(Boxes().front(), "E2030 in modMappingRule.Find_Related_ARIS_ObjDef: -1");
}

TEST_F(RelatedStepTest, AnotherDirectionGoesUnnoticedWithoutADrawnConnection) {
    repository.ConnectUndrawn(here, cnxType, there);
    EXPECT_THAT(Step(here, 3), IsEmpty());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(RelatedStepTest, ConnectionsAreWalkedUpTo32768) {
    for (int i = 0; i < 32768; ++i) repository.Connect(here, cnxType, there);
    EXPECT_THAT(Step(here, CxnKind::outgoing), ElementsAre("there"));
    repository.Connect(here, cnxType, there);
    EXPECT_EQ(EndOf([&] {
                  Step(here, CxnKind::outgoing);
              }),
              FailureKind::overflow);
    EXPECT_THAT(Boxes(), ElementsAre("C6 in modMappingRule.Find_Related_ARIS_ObjDef: overflow"));
}

}  // namespace
}  // namespace wxbrg::test
