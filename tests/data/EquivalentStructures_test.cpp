// When two structures count as the same.

#include <gmock/gmock.h>

#include "data/StructureIndex.h"
#include "data/clsDATA_MEMBER.h"
#include "data/clsDATA_STRUCTURE.h"
#include "data/modDATA_MEMBER.h"
#include "data/modDATA_STRUCTURE.h"
#include "tests/fixture/CoreTest.h"
#include "tests/fixture/RandomChoices.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class EquivalentStructuresTest : public CoreTest {
  protected:
    Ref<FakeObject> Attribute(const std::string& name) { return Drawn(ObjectType::ermAttribute, name); }
    /// An entity type of another model with given members.
    Ref<FakeObject> EntityWith(const Ref<FakeModel>& where, const std::string& name,
                               const std::vector<Ref<FakeObject>>& members) {
        const Ref<FakeObject> entity = repository.Object(ObjectType::entityType, name);
        repository.Draw(where, entity);
        for (const Ref<FakeObject>& member : members) AddMember(entity, member);
        return entity;
    }
    static std::vector<std::string> StructureNames() {
        std::vector<std::string> names;
        for (const Ref<clsDATA_STRUCTURE>& structure : gBlock.gColDATA_STRUCTURE)
            names.push_back(structure->ObjectName);
        return names;
    }

    Ref<FakeObject> a = Attribute("a");
    Ref<FakeObject> b = Attribute("b");
    Ref<FakeModel> second = repository.Model(processType, "Second", group);
};

TEST_F(EquivalentStructuresTest, EqualMembersStayTwoStructuresWithinABatch) {
    EntityWith(model, "First", {a, b});
    EntityWith(model, "Other", {a, b});
    DATA_STRUCTURE_Create(ModelsOf({model}));
    EXPECT_THAT(StructureNames(), ElementsAre("'First'", "'Other'"));
}

TEST_F(EquivalentStructuresTest, EqualMembersStayTwoStructuresAcrossBatches) {
    EntityWith(model, "First", {a});
    EntityWith(model, "Second", {a, b});
    EntityWith(second, "Equal to the second", {b, a});
    DATA_STRUCTURE_Create(ModelsOf({model}));
    DATA_STRUCTURE_Create(ModelsOf({second}));
    EXPECT_THAT(StructureNames(), ElementsAre("'First'", "'Second'", "'Equal to the second'"));
}

TEST_F(EquivalentStructuresTest, AGeneratedStructureInFrontOfAllMappedOnesStandsForALaterObject) {
    const Ref<clsDATA_STRUCTURE> generated = DATA_STRUCTURE_Generate(ObjectsOf({a, b}));
    EntityWith(model, "Equal", {b, a});
    ForgetNotes();
    DATA_STRUCTURE_Create(ModelsOf({model}));
    EXPECT_EQ(gBlock.gColDATA_STRUCTURE.Count(), 1);
    EXPECT_EQ(gBlock.gColDATA_STRUCTURE.Item(1), generated);
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(EquivalentStructuresTest, AGeneratedStructureBehindAMappedOneDoesNot) {
    EntityWith(model, "Unlike", {a});
    DATA_STRUCTURE_Create(ModelsOf({model}));
    DATA_STRUCTURE_Generate(ObjectsOf({a, b}));
    EntityWith(second, "Equal", {a, b});
    DATA_STRUCTURE_Create(ModelsOf({second}));
    EXPECT_THAT(StructureNames(), ElementsAre("'Unlike'", "'DATA_STRUCTURE_0'", "'Equal'"));
}

TEST_F(EquivalentStructuresTest, TheFirstMappedObjectOfALaterBatchIsItsOwnEqual) {
    const Ref<FakeObject> first = EntityWith(model, "First", {a});
    const Ref<FakeObject> other = EntityWith(model, "Other", {b});
    repository.Draw(second, first);
    repository.Draw(second, other);
    DATA_STRUCTURE_Create(ModelsOf({model}));
    ForgetNotes();
    DATA_STRUCTURE_Create(ModelsOf({second}));
    EXPECT_EQ(gBlock.gColDATA_STRUCTURE.Count(), 2);
    // At the other one the search stops at the first, so that it is noted again.
    EXPECT_THAT(Notes(), ElementsAre("I3060|Other|T17|DATA_STRUCTURE"));
}

TEST_F(EquivalentStructuresTest, AnObjectIsNotItsOwnEqualBeforeItIsFilled) {
    const Ref<FakeObject> first = EntityWith(model, "First", {a});
    DATA_STRUCTURE_Find_ARIS_Mapping(ModelsOf({model}));
    EXPECT_FALSE(DATA_STRUCTURE_FindEquivalentStructure(ObjectsOf({a}), first));
    DATA_STRUCTURE_SetupProperties();
    EXPECT_EQ(DATA_STRUCTURE_FindEquivalentStructure(ObjectsOf({a}), first),
              gBlock.gColDATA_STRUCTURE.Item(1));
}

TEST_F(EquivalentStructuresTest, AllMembersOfAMappedStructureAreThatStructure) {
    EntityWith(model, "First", {a});
    const Ref<FakeObject> order = EntityWith(model, "Order", {a, b});
    DATA_STRUCTURE_Create(ModelsOf({model}));
    EXPECT_EQ(DATA_STRUCTURE_Generate(ObjectsOf({b, a})), gBlock.gColDATA_STRUCTURE.Item(order->Guid()));
    EXPECT_EQ(gBlock.gNextDataStructureSuffix, 0);
}

TEST_F(EquivalentStructuresTest, SomeOfTheMembersAreNot) {
    EntityWith(model, "Order", {a, b});
    DATA_STRUCTURE_Create(ModelsOf({model}));
    EXPECT_TRUE(DATA_STRUCTURE_Generate(ObjectsOf({a}))->IsGenerated);
    EXPECT_TRUE(DATA_STRUCTURE_Generate(ObjectsOf({a, b, Attribute("c")}))->IsGenerated);
    EXPECT_TRUE(DATA_STRUCTURE_Generate(ObjectsOf({a, Attribute("d")}))->IsGenerated);
}

TEST_F(EquivalentStructuresTest, AMappedStructureAsAMemberCountsByItsObject) {
    const Ref<FakeObject> inner = EntityWith(model, "Inner", {a});
    const Ref<clsDATA_STRUCTURE> structure = DATA_STRUCTURE_Generate(ObjectsOf({inner, b}));
    EXPECT_EQ(DATA_STRUCTURE_Generate(ObjectsOf({b, inner})), structure);
}

TEST_F(EquivalentStructuresTest, AGeneratedStructureAsAMemberMatchesNothing) {
    const Ref<clsDATA_STRUCTURE> structure = DATA_STRUCTURE_Generate(ObjectsOf({a}));
    const Ref<clsDATA_MEMBER> member = structure->ColDATA_MEMBER.Item(1);
    member->IsDataStructure = true;
    member->DATA_STRUCTURE = structure;
    EXPECT_FALSE(StructureIndex::FindByWalk(ObjectsOf({a}), nullptr));
}

TEST_F(EquivalentStructuresTest, NoRegisteredStructureIsEqualToAnything) {
    EXPECT_FALSE(DATA_STRUCTURE_FindEquivalentStructure(ObjectsOf({a}), nullptr));
    EXPECT_FALSE(DATA_STRUCTURE_FindEquivalentStructure(ObjectsOf({a}), b));
}

TEST_F(EquivalentStructuresTest, ObjectsWhoseGuidsDifferInCaseAloneAreOneMemberAndNotEqual) {
    const Ref<FakeObject> lower = repository.Object(ObjectType::ermAttribute, "lower", "{abc}");
    const Ref<FakeObject> upper = repository.Object(ObjectType::ermAttribute, "upper", "{ABC}");
    repository.Draw(model, lower);
    repository.Draw(model, upper);
    const Ref<clsDATA_STRUCTURE> one = DATA_STRUCTURE_Generate(ObjectsOf({lower}));
    const Ref<clsDATA_STRUCTURE> other = DATA_STRUCTURE_Generate(ObjectsOf({upper}));
    EXPECT_NE(one, other);
    EXPECT_EQ(one->ColDATA_MEMBER.Item(1), other->ColDATA_MEMBER.Item(1));
    EXPECT_EQ(DATA_STRUCTURE_Generate(ObjectsOf({lower})), one);
    // The other one has the member of the first, which bears another Guid than the object asked for.
    EXPECT_FALSE(StructureIndex::FindByWalk(ObjectsOf({upper}), nullptr));
    EXPECT_FALSE(DATA_STRUCTURE_FindEquivalentStructure(ObjectsOf({upper}), nullptr));
}

TEST_F(EquivalentStructuresTest, AnObjectWhoseGuidDiffersInCaseAloneFromAMappedOneGetsNoStructure) {
    const Ref<FakeObject> lower = repository.Object(ObjectType::entityType, "Lower", "{abc}");
    const Ref<FakeObject> upper = repository.Object(ObjectType::entityType, "Upper", "{ABC}");
    repository.Draw(model, lower);
    repository.Draw(second, upper);
    AddMember(lower, a);
    AddMember(upper, b);
    DATA_STRUCTURE_Create(ModelsOf({model}));
    ForgetNotes();
    DATA_STRUCTURE_Create(ModelsOf({second}));
    EXPECT_THAT(StructureNames(), ElementsAre("'Lower'"));
    EXPECT_THAT(Notes(), ElementsAre("I3060|Upper|T17|DATA_STRUCTURE"));
    EXPECT_EQ(DATA_STRUCTURE_Add_ARIS_Mapping(upper), gBlock.gColDATA_STRUCTURE.Item(1));
}

/// A cluster that contains itself, as a member of a cluster.
class SelfContainingDataTest : public EquivalentStructuresTest {
  protected:
    SelfContainingDataTest() {
        AddMember(self, self);
        AddMember(outer, self);
    }

    Ref<FakeObject> self = Drawn(ObjectType::cluster, "Self");
    Ref<FakeObject> outer = Drawn(ObjectType::cluster, "Outer");
};

TEST_F(SelfContainingDataTest, LeavesAnEmptyEntryInTheStructureThatAskedForIt) {
    const Ref<clsDATA_STRUCTURE> structure = DATA_STRUCTURE_Add_ARIS_Mapping(outer);
    ASSERT_EQ(structure->ColDATA_MEMBER.Count(), 1);
    EXPECT_FALSE(structure->ColDATA_MEMBER.Item(1));
    EXPECT_NE(structure->ColDATA_MEMBER.Find(self->Guid()), nullptr);
    EXPECT_TRUE(gBlock.gColDATA_MEMBER.Item(self->Guid())->IsDataStructure);
    EXPECT_EQ(gBlock.gColDATA_STRUCTURE.Item(self->Guid())->ColDATA_MEMBER.Count(), 1);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(SelfContainingDataTest, IsAMemberLikeAnyOtherOnceItHasAStructure) {
    DATA_STRUCTURE_Add_ARIS_Mapping(self);
    const Ref<clsDATA_STRUCTURE> structure = DATA_STRUCTURE_Add_ARIS_Mapping(outer);
    EXPECT_EQ(structure->ColDATA_MEMBER.Item(1), gBlock.gColDATA_MEMBER.Item(self->Guid()));
}

TEST_F(SelfContainingDataTest, LeavesTheNameOfTheProcedureThatMetIt) {
    Procedure("modTest.Caller", [&](Frame&) {
        EXPECT_FALSE(DATA_MEMBER_Add_ARIS_Mapping(self));
        EXPECT_EQ(gBlock.gCurrentProcedure, "modDATA_MEMBER.DATA_MEMBER_Add_ARIS_Mapping");
    });
}

TEST_F(SelfContainingDataTest, EndsTheRunWhereTheEmptyEntryIsCompared) {
    DATA_STRUCTURE_Add_ARIS_Mapping(outer);
    EXPECT_EQ(EndOf([&] {
                  DATA_STRUCTURE_Generate(ObjectsOf({a}));
              }),
              FailureKind::objectNotSet);
    EXPECT_THAT(Boxes(), ElementsAre("C91 in modDATA_STRUCTURE.DATA_STRUCTURE_FindEquivalentStructure: "
                                     "object not set"));
}

TEST_F(SelfContainingDataTest, IsNotComparedWhereTheNumbersDiffer) {
    DATA_STRUCTURE_Add_ARIS_Mapping(outer);
    EXPECT_TRUE(DATA_STRUCTURE_Generate(ObjectsOf({a, b}))->IsGenerated);
    EXPECT_EQ(DATA_STRUCTURE_Generate(ObjectsOf({b, a})), gBlock.gColDATA_STRUCTURE.Item(3));
}

TEST_F(SelfContainingDataTest, MayDoSoOverOthers) {
    const Ref<FakeObject> circle = Drawn(ObjectType::cluster, "Circle");
    const Ref<FakeObject> back = Drawn(ObjectType::cluster, "Back");
    AddMember(circle, back);
    AddMember(back, circle);
    const Ref<clsDATA_STRUCTURE> structure = DATA_STRUCTURE_Generate(ObjectsOf({circle, a}));
    EXPECT_FALSE(structure->ColDATA_MEMBER.Item(1));
    EXPECT_TRUE(structure->ColDATA_MEMBER.Item(2));
}

class StructureIndexPropertyTest : public CoreTest, protected RandomChoices<20260102> {
  protected:
    Collection<ARISObjDef> SomeOf(const std::vector<Ref<FakeObject>>& pool) {
        Collection<ARISObjDef> some;
        for (int count = 1 + Below(3); count > 0; --count) {
            const Ref<FakeObject> object =
                pool[static_cast<std::size_t>(Below(static_cast<int>(pool.size())))];
            some.AddNew(object, object->Guid());
        }
        return some;
    }

    /// Entity types with random members, some of which are entity types that came before.
    std::vector<Ref<FakeObject>> MakeEntities(std::vector<Ref<FakeObject>>& members) {
        std::vector<Ref<FakeObject>> entities;
        for (int i = 0; i < 8; ++i) {
            const Ref<FakeObject> entity = Drawn(ObjectType::cluster, "C" + std::to_string(i));
            for (const ARISObjDef& member : SomeOf(members)) {
                const auto found = std::find(members.begin(), members.end(), member);
                repository.Connect(entity, 85, *found);
            }
            entities.push_back(entity);
            if (Below(2) == 0) members.push_back(entity);
        }
        return entities;
    }

    void ExpectSameAnswers(const std::vector<Ref<FakeObject>>& members,
                           const std::vector<Ref<FakeObject>>& entities) {
        const Collection<ARISObjDef> some = SomeOf(members);
        const Ref<FakeObject> entity =
            entities[static_cast<std::size_t>(Below(static_cast<int>(entities.size())))];
        for (const ARISObjDef& object : {ARISObjDef(), ARISObjDef(entity)}) {
            const Ref<clsDATA_STRUCTURE> walked = StructureIndex::FindByWalk(some, object);
            EXPECT_EQ(gBlock.gStructureIndex->Find(some, object), walked);
            if (walked) ++equal;
        }
    }
    int equal = 0;
};

TEST_F(StructureIndexPropertyTest, AnswersAsAWalkOverAllStructuresDoes) {
    for (int round = 0; round < 100 && !HasFailure(); ++round) {
        gBlock.gColDATA_STRUCTURE = {};
        gBlock.gColDATA_MEMBER = {};
        gBlock.gStructureIndex = gBlock.gPool.Create<StructureIndex>();
        std::vector<Ref<FakeObject>> members;
        for (int i = 0; i < 3; ++i) members.push_back(Drawn(ObjectType::entityType, "E"));
        for (const char* guid : {"{e}", "{E}"}) {
            members.push_back(repository.Object(ObjectType::entityType, guid, guid));
            repository.Draw(model, members.back());
        }
        const std::vector<Ref<FakeObject>> entities = MakeEntities(members);
        for (int step = 0; step < 30; ++step) {
            const Ref<FakeObject> entity =
                entities[static_cast<std::size_t>(Below(static_cast<int>(entities.size())))];
            if (Below(3) == 0)
                DATA_STRUCTURE_Add_ARIS_Mapping(entity);
            else if (Below(2) == 0)
                DATA_STRUCTURE_Generate(SomeOf(members));
            ExpectSameAnswers(members, entities);
        }
    }
    EXPECT_GT(equal, 500);
}

}  // namespace
}  // namespace wxbrg::test
