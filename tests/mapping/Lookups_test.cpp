// Finding objects in models, attributes, and whether an object conforms.

#include "mapping/RuleLookups.h"

#include <gmock/gmock.h>

#include "mapping/RelatedObjectSearch.h"
#include "mapping/RelatingPaths.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The most items that an ARIS list may have to be walked.
constexpr std::int32_t longestList = 32768;

class LookupsTest : public CoreTest {
  protected:
    std::vector<std::string> Found(std::initializer_list<ARISModel> models, std::string_view rule) {
        Collection<ARISObjDef> result;
        return NamesOf(Find_ARIS_ObjDef_Using_Mapping_Rule(ModelsOf(models), result, rule));
    }
};

TEST_F(LookupsTest, ObjectsComeByTypeThenByModelThenByName) {
    const Ref<FakeModel> second = repository.Model(processType, "Second", group);
    const auto draw = [&](const Ref<FakeModel>& where, std::int32_t type, const char* name) {
        repository.Draw(where, repository.Object(type, name));
    };
    draw(second, ObjectType::itFunctionType, "B2");
    draw(second, ObjectType::applicationSystem, "Z2");
    draw(second, ObjectType::applicationSystem, "A2");
    draw(model, ObjectType::moduleType, "C1");
    draw(model, ObjectType::applicationSystem, "Z1");
    draw(model, ObjectType::applicationSystem, "Y1");
    EXPECT_THAT(Found({model, second}, "PROGRAM"), ElementsAre("Y1", "Z1", "A2", "Z2", "B2", "C1"));
    EXPECT_THAT(Found({second, model}, "PROGRAM"), ElementsAre("A2", "Z2", "Y1", "Z1", "B2", "C1"));
}

TEST_F(LookupsTest, NamesSortByCodePointAndEqualOnesStayInTheModelsOrder) {
    for (const char* name : {"b", "Zebra", "a", "Äpfel", "B"}) Function(name);
    const Ref<FakeObject> first = Function("twin");
    const Ref<FakeObject> second = Function("twin");
    Collection<ARISObjDef> result;
    Find_ARIS_ObjDef(ModelsOf({model}), result, ObjectType::function);
    EXPECT_THAT(NamesOf(result), ElementsAre("B", "Zebra", "a", "b", "twin", "twin", "Äpfel"));
    EXPECT_EQ(result.Item(5)->Guid(), first->Guid());
    EXPECT_EQ(result.Item(6)->Guid(), second->Guid());
}

TEST_F(LookupsTest, AnObjectThatAModelListsAndDoesNotDrawIsPassedOver) {
    Function("drawn");
    model->List(DrawnElsewhere(ObjectType::function, "drawn elsewhere"));
    model->List(repository.Object(ObjectType::function, "drawn nowhere"));
    EXPECT_THAT(Found({model}, "ACTIVITY"), ElementsAre("drawn"));
}

TEST_F(LookupsTest, AnObjectOfTwoModelsStandsOnceWhereItIsFoundFirst) {
    const Ref<FakeModel> second = repository.Model(processType, "Second", group);
    const Ref<FakeObject> shared = Function("shared");
    Function("z");
    repository.Draw(second, shared);
    repository.Draw(second, shared);
    repository.Draw(second, repository.Object(ObjectType::function, "a"));
    EXPECT_THAT(Found({model, second}, "ACTIVITY"), ElementsAre("shared", "z", "a"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(LookupsTest, GuidsThatDifferInCaseAloneAreOneObjectInAResult) {
    repository.Draw(model, repository.Object(ObjectType::function, "first", "{abc}"));
    repository.Draw(model, repository.Object(ObjectType::function, "second", "{ABC}"));
    EXPECT_THAT(Found({model}, "ACTIVITY"), ElementsAre("first"));
}

TEST_F(LookupsTest, ObjectsAreAddedToWhatTheResultHolds) {
    Function("f");
    Event("e");
    Collection<ARISObjDef> result;
    Collection<ARISObjDef>& events = Find_ARIS_ObjDef(ModelsOf({model}), result, ObjectType::event);
    EXPECT_EQ(&events, &result);
    Find_ARIS_ObjDef_Using_Mapping_Rule(ModelsOf({model}), result, "ACTIVITY");
    EXPECT_THAT(NamesOf(result), ElementsAre("e", "f"));
}

TEST_F(LookupsTest, NoModelsGiveNothingButTheRuleMustBeKnown) {
    Function("f");
    EXPECT_THAT(Found({}, "ACTIVITY"), IsEmpty());
    EXPECT_EQ(EndOf([&] {
                  Found({}, "NO_RULE");
              }),
              2100);
    EXPECT_THAT(Boxes(), ElementsAre("C2100 in modMappingRule.Find_ARIS_ObjDef_Using_Mapping_Rule: NO_RULE"));
}

TEST_F(LookupsTest, AListIsWalkedUpTo32768Items) {
    for (std::int32_t i = 0; i < longestList; ++i) Function("f");
    Collection<ARISObjDef> result;
    Find_ARIS_ObjDef(ModelsOf({model}), result, ObjectType::function);
    EXPECT_EQ(result.Count(), longestList);
    Function("one more");
    EXPECT_EQ(EndOf([&] {
                  Find_ARIS_ObjDef(ModelsOf({model}), result, ObjectType::function);
              }),
              FailureKind::overflow);
    EXPECT_THAT(Boxes(), ElementsAre("C6 in modMappingRule.Find_ARIS_ObjDef: overflow"));
}

TEST_F(LookupsTest, AnObjectRuleWithoutTypesFindsNothing) {
    const Ref<FakeObject> function = Function("f");
    NewTypeRule("EMPTY", {});
    EXPECT_THAT(Found({model}, "EMPTY"), IsEmpty());
    EXPECT_FALSE(ARIS_ObjDef_Conforms_To_Mapping_Rule(function, "EMPTY"));
}

TEST_F(LookupsTest, ConformingLooksAtNothingButTheType) {
    const Ref<FakeObject> undrawn = repository.Object(ObjectType::cluster, "c");
    EXPECT_TRUE(ARIS_ObjDef_Conforms_To_Mapping_Rule(undrawn, "DATA_OBJECT"));
    EXPECT_TRUE(ARIS_ObjDef_Conforms_To_Mapping_Rule(undrawn, "data_object"));
    EXPECT_FALSE(ARIS_ObjDef_Conforms_To_Mapping_Rule(undrawn, "ACTIVITY"));
    EXPECT_EQ(gBlock.gCurrentProcedure, "modTest.Test");
}

TEST_F(LookupsTest, AnAttributeIsReadByTheNumberOfItsRule) {
    const Ref<FakeObject> function = Function("Check")->With(9, "Checks an order");
    EXPECT_EQ(Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(function, "ACTIVITY_DESCRIPTION"),
              "Checks an order");
    EXPECT_EQ(Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(function, "activity_description"),
              "Checks an order");
    EXPECT_EQ(Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(function, "ACTIVITY_DOCUMENTATION"), "");
}

TEST_F(LookupsTest, MinusOneStandsForTheName) {
    const Ref<FakeObject> function = Function("Check\r\norder");
    EXPECT_EQ(Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(function, "ACTIVITY_ActivityName"),
              "Check\r\norder");
    EXPECT_EQ(Find_ARIS_ObjDef_Attribute(function, -1), "Check\r\norder");
}

TEST_F(LookupsTest, LineBreaksOfAnAttributeGoByTheOption) {
    const Ref<FakeObject> function = Function("Check")->With(9, "one\r\ntwo\nthree");
    EXPECT_EQ(Find_ARIS_ObjDef_Attribute(function, 9), "one two three");
    gBlock.gOptRemoveLineBreaks = false;
    EXPECT_EQ(Find_ARIS_ObjDef_Attribute(function, 9), "one\r\ntwo\nthree");
}

TEST_F(LookupsTest, AnAttributeThatIsNotMaintainedIsEmpty) {
    const Ref<FakeObject> function = Function("Check");
    function->SetUnmaintained(9);
    EXPECT_EQ(Find_ARIS_ObjDef_Attribute(function, 9), "");
    EXPECT_EQ(Find_ARIS_ObjDef_Attribute(function, 8), "");
}

TEST_F(LookupsTest, AnAttributeRuleWithoutANumberIsATypeMismatch) {
    const Ref<FakeObject> function = Function("Check");
    NewRule("NO_ATTRIBUTE");
    EXPECT_EQ(EndOf([&] {
                  Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(function, "NO_ATTRIBUTE");
              }),
              FailureKind::typeMismatch);
    EXPECT_THAT(
        Boxes(),
        ElementsAre("C13 in modMappingRule.Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule: type mismatch"));
}

TEST_F(LookupsTest, TheNumberOfAnAttributeRuleIsReadAsANumber) {
    const Ref<FakeObject> function = Function("Check")->With(8, "eight");
    NewAttributeRule("ROUNDED", " 8.5 ");
    EXPECT_EQ(Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(function, "ROUNDED"), "eight");
    NewAttributeRule("TOO_LARGE", "2147483648");
    EXPECT_EQ(EndOf([&] {
                  Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(function, "TOO_LARGE");
              }),
              FailureKind::overflow);
}

TEST_F(LookupsTest, OneRuleServesAttributesAndConnections) {
    const Ref<FakeObject> function = Function("Check")->With(9, "text");
    const Ref<FakeObject> other = Function("Pay");
    repository.Connect(function, 118, other);
    const Ref<clsMappingRule> both = NewAttributeRule("BOTH", "9");
    AddStep(both, ObjectType::function, CxnKind::outgoing, 118, ObjectType::function);
    Collection<ARISObjDef> related;
    EXPECT_EQ(Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(function, "BOTH"), "text");
    EXPECT_THAT(NamesOf(Find_Related_ARIS_ObjDef_Using_Mapping_Rule(related, function, "BOTH")),
                ElementsAre("Pay"));
}

/// A lookup that takes a rule name, and the procedure under which an unknown one is reported.
struct RuleLookup {
    std::string_view procedure;
    std::function<void(const ARISObjDef&, std::string_view rule)> ask;
};

TEST_F(LookupsTest, AnUnknownRuleEndsTheRunInWhateverLookupMeetsIt) {
    const Ref<FakeObject> function = Function("Check");
    const std::vector<RuleLookup> lookups = {
        {"Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule", Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule},
        {"Find_Related_ARIS_ObjDef_Using_Mapping_Rule",
         [](const ARISObjDef& object, std::string_view rule) {
             Collection<ARISObjDef> result;
             Find_Related_ARIS_ObjDef_Using_Mapping_Rule(result, object, rule);
         }},
        {"Find_Relating_Paths_Using_Mapping_Rule",
         [](const ARISObjDef& object, std::string_view rule) {
             Find_Relating_Paths_Using_Mapping_Rule({}, object, object, rule);
         }},
        {"ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule",
         [](const ARISObjDef& object, std::string_view rule) {
             ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule(object, object, rule);
         }},
        {"ARIS_ObjDef_Conforms_To_Mapping_Rule", ARIS_ObjDef_Conforms_To_Mapping_Rule},
    };
    for (const RuleLookup& lookup : lookups) {
        gBlock.gFailureContext = "";
        EXPECT_EQ(EndOf([&] {
                      lookup.ask(function, "NO_RULE");
                  }),
                  2100);
        EXPECT_EQ(Boxes().back(), "C2100 in modMappingRule." + std::string(lookup.procedure) + ": NO_RULE");
        EXPECT_EQ(gBlock.gFailureContext, "failed");
    }
}

TEST_F(LookupsTest, TheFailureContextIsEmptyBehindARule) {
    gBlock.gFailureContext = "Retrieve PROCESS";
    EXPECT_TRUE(ARIS_ObjDef_Conforms_To_Mapping_Rule(Function("f"), "ACTIVITY"));
    EXPECT_EQ(gBlock.gFailureContext, "");
}

}  // namespace
}  // namespace wxbrg::test
