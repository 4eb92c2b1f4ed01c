#include "tests/aris/RepositoryContract.h"

#include <gmock/gmock.h>

#include "support/Failure.h"
#include "tests/aris/OpenAml.h"

namespace wxbrg::test {

using testing::ElementsAre;

ARISDatabase RepositoryContract::Open(const RepositoryText& content, const std::string& user) {
    repository_ = GetParam().provide(content);
    return repository_->Application()
        ->GetComponent(arisReportComponent)
        ->OpenDatabase("LOCAL", content.databaseName, "", user, "");
}

ARISModel RepositoryContract::ModelOf(ARISDatabase database, const std::string& name) {
    const ARISModelList found = database->FindModels(nameAttribute, 13, 1, english, name, 0);
    return found.Count() == 1 ? found.Get(0) : ARISModel();
}

ARISObjDef RepositoryContract::ObjectOf(ARISModel model, std::int32_t type, const std::string& name) {
    for (const ARISObjDef& object : model->ObjDefListFilter("", english, type, ""))
        if (object->Name(english) == name) return object;
    return {};
}

namespace {

/// Two functions with an event between them, in two models.
RepositoryText Chain() {
    RepositoryText content;
    content.root.definitions = {
        {.id = "F1",
         .name = "Check",
         .guid = "guid-f1",
         .values = {{"AT_DESC", "Prüfen", german}, {"AT_DESC", "To be checked"}, {"8", "a\nb"}},
         .connections = {{"C1", "CT_CRT_1", "E1"}, {"C4", "CT_HAS_OUT", "E1"}, {"C5", "CT_CRT_1", "E2"}},
         .assignedModels = {"M2"}},
        {.id = "E1",
         .type = "OT_EVT",
         .name = "Checked",
         .guid = "guid-e1",
         .connections = {{"C2", "43", "F2"}}},
        {.id = "F2", .name = "Book", .guid = "guid-f2", .connections = {{"C3", "118", "F2"}}},
        {.id = "E2", .type = "OT_EVT", .name = "Never drawn", .guid = "guid-e2"}};
    content.root.models = {
        {.id = "M1",
         .name = "Order",
         .guid = "guid-m1",
         .occurrences =
             {{.definition = "F2", .x = 300, .y = 40},
              {.definition = "F1", .x = -7, .y = 2000000000, .symbol = "ST_FUNC", .drawnConnections = {"C1"}},
              {.definition = "E1", .symbol = "42"},
              {.definition = "F1", .x = 5}}},
        {.id = "M2",
         .name = "Refinement",
         .guid = "guid-m2",
         .occurrences = {{.definition = "F1", .x = 9, .drawnConnections = {"C1"}}}}};
    return content;
}

TEST_P(RepositoryContract, DatabaseTellsItsNameAndTheUserThatWasGiven) {
    const ARISDatabase database = Open(Chain(), "o'brien");
    EXPECT_EQ(database->Name(english), "Demo");
    EXPECT_EQ(database->ActiveUser()->Name(english), "o'brien");
    EXPECT_FALSE(database->ServerName().empty());
}

TEST_P(RepositoryContract, FindModelsTakesTypeAndExactName) {
    const ARISDatabase database = Open(Chain());
    EXPECT_EQ(ModelOf(database, "Order")->Guid(), "guid-m1");
    EXPECT_FALSE(ModelOf(database, "order"));
    EXPECT_FALSE(ModelOf(database, "Orde"));
    EXPECT_EQ(database->FindModels(nameAttribute, 14, 1, english, "Order", 0).Count(), 0);
    EXPECT_EQ(database->FindModels(nameAttribute, 13, 1, german, "Order", 0).Count(), 0);
}

TEST_P(RepositoryContract, ModelTellsTypeNameAndGroup) {
    RepositoryText content = Chain();
    content.root.groups = {{.id = "G1",
                            .name = "Sales",
                            .guid = "guid-g1",
                            .values = {{"AT_DESC", "of the group"}},
                            .models = {{.id = "M3", .name = "Offer", .guid = "guid-m3"}}}};
    const ARISModel model = ModelOf(Open(content), "Offer");
    EXPECT_EQ(model->TypeNum(), 13);
    EXPECT_EQ(model->Type(), "EPC");
    EXPECT_EQ(model->Group()->Guid(), "guid-g1");
    EXPECT_EQ(model->Group()->Name(english), "Sales");
    EXPECT_EQ(model->Group()->Attribute(9, english)->GetValue(false), "of the group");
}

TEST_P(RepositoryContract, ObjectsOfATypeAreThoseThatTheModelShowsEachOnce) {
    const ARISModel model = ModelOf(Open(Chain()), "Order");
    EXPECT_THAT(Names(OpenAml::Objects(model, 22)), ElementsAre("Check", "Book"));
    EXPECT_THAT(Names(OpenAml::Objects(model, 18)), ElementsAre("Checked"));
    EXPECT_EQ(OpenAml::Objects(model, 50).Count(), 0);
}

TEST_P(RepositoryContract, ObjectsSortByName) {
    ARISObjDefList objects = OpenAml::Objects(ModelOf(Open(Chain()), "Order"), 22);
    objects.Sort(1, 0, 0, english);
    EXPECT_THAT(Names(objects), ElementsAre("Book", "Check"));
}

TEST_P(RepositoryContract, ObjectTellsTypeNameAndGuid) {
    const ARISObjDef object = ObjectOf(ModelOf(Open(Chain()), "Order"), 22, "Check");
    EXPECT_EQ(object->TypeNum(), 22);
    EXPECT_EQ(object->Type(), "Function");
    EXPECT_EQ(object->Guid(), "guid-f1");
    EXPECT_EQ(object->Name(german), "");
}

TEST_P(RepositoryContract, AttributeIsMaintainedInItsLocalesOnly) {
    const ARISObjDef object = ObjectOf(ModelOf(Open(Chain()), "Order"), 22, "Check");
    EXPECT_TRUE(object->Attribute(9, german)->IsMaintained());
    EXPECT_EQ(object->Attribute(9, german)->GetValue(false), "Prüfen");
    EXPECT_EQ(object->Attribute(9, english)->GetValue(false), "To be checked");
    EXPECT_EQ(object->Attribute(9, english)->Type(), "Description/Definition");
    EXPECT_TRUE(object->Attribute(8, english)->IsMaintained());
    EXPECT_FALSE(object->Attribute(8, german)->IsMaintained());
}

TEST_P(RepositoryContract, AttributeWithoutAValueIsAHandleToo) {
    const ARISObjDef object = ObjectOf(ModelOf(Open(Chain()), "Order"), 22, "Check");
    const ARISAttr attribute = object->Attribute(4711, english);
    ASSERT_TRUE(attribute);
    EXPECT_FALSE(attribute->IsMaintained());
    EXPECT_EQ(attribute->GetValue(true), "");
}

TEST_P(RepositoryContract, LineBreaksBecomeBlanksOnDemand) {
    const ARISAttr attribute = ObjectOf(ModelOf(Open(Chain()), "Order"), 22, "Check")->Attribute(8, english);
    EXPECT_EQ(attribute->GetValue(false), "a\nb");
    EXPECT_EQ(attribute->GetValue(true), "a b");
}

TEST_P(RepositoryContract, AttributeListHoldsThoseWithAValueInTheLocale) {
    const ARISObjDef object = ObjectOf(ModelOf(Open(Chain()), "Order"), 22, "Check");
    std::vector<std::string> values;
    for (const ARISAttr& attribute : object->AttrList(english)) values.push_back(attribute->GetValue(false));
    EXPECT_THAT(values, ElementsAre("Check", "To be checked", "a\nb"));
    EXPECT_EQ(object->AttrList(german).Count(), 1);
    EXPECT_EQ(object->AttrList(1036).Count(), 0);
}

TEST_P(RepositoryContract, OccurrencesAreThoseOfAllModelsOrOfOne) {
    const ARISDatabase database = Open(Chain());
    const ARISModel order = ModelOf(database, "Order");
    const ARISObjDef object = ObjectOf(order, 22, "Check");
    EXPECT_EQ(object->OccList().Count(), 3);
    const ARISObjOccList inOrder = object->OccListInModel(order);
    ASSERT_EQ(inOrder.Count(), 2);
    EXPECT_EQ(inOrder.Get(0)->X(), -7);
    EXPECT_EQ(inOrder.Get(0)->Y(), 2000000000);
    EXPECT_EQ(inOrder.Get(0)->SymbolNum(), 335);
    EXPECT_EQ(inOrder.Get(1)->X(), 5);
    EXPECT_EQ(object->OccListInModel(ModelOf(database, "Refinement")).Get(0)->X(), 9);
    EXPECT_EQ(ObjectOf(order, 22, "Book")->OccListInModel(ModelOf(database, "Refinement")).Count(), 0);
}

TEST_P(RepositoryContract, ConnectionsFilterByDirectionAndType) {
    const ARISModel order = ModelOf(Open(Chain()), "Order");
    const ARISObjDef check = ObjectOf(order, 22, "Check");
    const ARISObjDef checked = ObjectOf(order, 18, "Checked");
    ASSERT_EQ(Connections(check, CxnKind::outgoing, 44).Count(), 2);
    EXPECT_EQ(Connections(check, CxnKind::outgoing, 44).Get(0)->TargetObjDef()->Guid(), "guid-e1");
    EXPECT_EQ(Connections(check, CxnKind::outgoing, 44).Get(1)->TargetObjDef()->Guid(), "guid-e2");
    EXPECT_EQ(Connections(check, CxnKind::incoming, 44).Count(), 0);
    ASSERT_EQ(Connections(checked, CxnKind::incoming, 44).Count(), 1);
    EXPECT_EQ(Connections(checked, CxnKind::incoming, 44).Get(0)->SourceObjDef()->Guid(), "guid-f1");
    EXPECT_EQ(Connections(check, CxnKind::outgoing, 45).Count(), 0);
}

TEST_P(RepositoryContract, AnotherConnectionKindGivesBothEndsOnce) {
    const ARISModel order = ModelOf(Open(Chain()), "Order");
    EXPECT_EQ(Connections(ObjectOf(order, 18, "Checked"), 1, 44).Count(), 1);
    EXPECT_EQ(Connections(ObjectOf(order, 18, "Checked"), 1, 43).Count(), 1);
    EXPECT_EQ(Connections(ObjectOf(order, 22, "Book"), 0, 118).Count(), 1);
}

TEST_P(RepositoryContract, ConnectionOccurrencesAreCountedInAllModels) {
    const ARISObjDef check = ObjectOf(ModelOf(Open(Chain()), "Order"), 22, "Check");
    EXPECT_EQ(Connections(check, CxnKind::outgoing, 44).Get(0)->OccList().Count(), 2);
    EXPECT_EQ(Connections(check, CxnKind::outgoing, 44).Get(1)->OccList().Count(), 0);
}

TEST_P(RepositoryContract, ADefinitionMayHaveNoOccurrence) {
    const ARISObjDef check = ObjectOf(ModelOf(Open(Chain()), "Order"), 22, "Check");
    const ARISObjDef undrawn = Connections(check, CxnKind::outgoing, 44).Get(1)->TargetObjDef();
    EXPECT_EQ(undrawn->Name(english), "Never drawn");
    EXPECT_EQ(undrawn->OccList().Count(), 0);
}

TEST_P(RepositoryContract, AssignedModelsAreModelsOfTheRepository) {
    const ARISDatabase database = Open(Chain());
    const ARISModelList assigned = ObjectOf(ModelOf(database, "Order"), 22, "Check")->AssignedModels();
    ASSERT_EQ(assigned.Count(), 1);
    EXPECT_EQ(assigned.Get(0), ModelOf(database, "Refinement"));
    EXPECT_EQ(ObjectOf(ModelOf(database, "Order"), 22, "Book")->AssignedModels().Count(), 0);
}

TEST_P(RepositoryContract, ListsRefuseAPositionOutsideThem) {
    const ARISObjDefList objects = OpenAml::Objects(ModelOf(Open(Chain()), "Order"), 22);
    for (const std::int32_t position : {-1, 2}) {
        try {
            objects.Get(position);
            ADD_FAILURE() << position;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number, FailureKind::invalidCall);
        }
    }
}

TEST_P(RepositoryContract, AnEmptyModelReferenceIsNoModel) {
    const ARISObjDef check = ObjectOf(ModelOf(Open(Chain()), "Order"), 22, "Check");
    try {
        check->OccListInModel({});
        ADD_FAILURE();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number, FailureKind::objectNotSet);
    }
}

}  // namespace

}  // namespace wxbrg::test
