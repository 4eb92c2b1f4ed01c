#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "tests/aris/OpenAml.h"

// Identity, occurrences, connections and links of the items of an export.

namespace wxbrg::test {

namespace {

using testing::ElementsAre;

/// One model with one function around which a test puts what it needs.
RepositoryText OneFunction(DefinitionText definition = {.id = "F"}) {
    RepositoryText content;
    content.root.models = {{.id = "M", .occurrences = {{.definition = definition.id}}}};
    content.root.definitions = {std::move(definition)};
    return content;
}

/// An export with one function whose occurrence has these attributes and holds these elements.
std::string WithOccurrence(std::string_view attributes, std::string_view inside) {
    return AmlGroupDocument(
        "<ObjDef ObjDef.ID=\"F\" TypeNum=\"22\"/><Model Model.ID=\"M\" Model.Type=\"13\">"
        "<ObjOcc ObjDef.IdRef=\"F\" " +
        std::string(attributes) + ">" + std::string(inside) + "</ObjOcc></Model>");
}

ARISObjOcc OnlyOccurrence(OpenAml& aml) {
    return aml.Function()->OccList().Get(0);
}

TEST(XmlIdentity, GuidLosesTheWhiteSpaceAroundIt) {
    OpenAml aml(OneFunction({.id = "F", .guid = " \n\t{c2ec}-A \n"}));
    EXPECT_EQ(aml.Function()->Guid(), "{c2ec}-A");
}

TEST(XmlIdentity, IdStandsForAMissingOrEmptyGuid) {
    RepositoryText content = OneFunction({.id = "ObjDef.1----p--"});
    EXPECT_EQ(OpenAml(content).Function()->Guid(), "ObjDef.1----p--");
    content.root.definitions[0].guid = "  ";
    EXPECT_EQ(OpenAml(content).Function()->Guid(), "ObjDef.1----p--");
    EXPECT_EQ(OpenAml(content).Model()->Guid(), "M");
    EXPECT_EQ(OpenAml(content).Model()->Group()->Guid(), "Group.Root");
}

TEST(XmlIdentity, GuidsDifferByCase) {
    RepositoryText content = OneFunction({.id = "F", .guid = "ab"});
    content.root.definitions.push_back({.id = "G", .guid = "AB"});
    content.root.models[0].occurrences.push_back({.definition = "G"});
    EXPECT_THAT(Guids(OpenAml::Objects(OpenAml(content).Model(), 22)), ElementsAre("ab", "AB"));
}

TEST(XmlIdentity, GuidOfAConnectionIsNotTheObjects) {
    OpenAml aml(
        AmlGroupDocument("<ObjDef ObjDef.ID=\"F\" TypeNum=\"22\"><CxnDef CxnDef.ID=\"C\" CxnDef.Type=\"1\" "
                         "ToObjDef.IdRef=\"F\"><GUID>of the connection</GUID></CxnDef></ObjDef>"
                         "<Model Model.ID=\"M\" Model.Type=\"13\"><ObjOcc ObjDef.IdRef=\"F\"/></Model>"));
    EXPECT_EQ(aml.Function()->Guid(), "F");
}

TEST(XmlModel, ObjectsStandInTheOrderOfTheirDefinitionsWhateverTheOrderOfTheOccurrences) {
    RepositoryText content;
    content.root.models = {
        {.id = "M", .occurrences = {{.definition = "c"}, {.definition = "a"}, {.definition = "b"}}}};
    content.root.definitions = {{.id = "b"}, {.id = "a"}, {.id = "c"}};
    OpenAml aml(content);
    EXPECT_THAT(Guids(OpenAml::Objects(aml.Model(), 22)), ElementsAre("b", "a", "c"));
}

TEST(XmlModel, ObjectListRefusesFilters) {
    OpenAml aml(OneFunction());
    EXPECT_THROW(aml.Model()->ObjDefListFilter("x", english, 22, ""), Failure);
    EXPECT_THROW(aml.Model()->ObjDefListFilter("", english, 22, "x"), Failure);
}

TEST(XmlModel, SortIsStableAndByCodePoint) {
    RepositoryText content;
    content.root.definitions = {{.id = "1", .name = "b"},
                                {.id = "2", .name = "\xF0\x9F\x98\x80"},
                                {.id = "3", .name = "Ä"},
                                {.id = "4", .name = "a"},
                                {.id = "5"},
                                {.id = "6", .name = "\xEF\xBF\xBD"},
                                {.id = "7", .name = "B"},
                                {.id = "8", .name = "a"}};
    content.root.models = {{.id = "M"}};
    for (const DefinitionText& definition : content.root.definitions)
        content.root.models[0].occurrences.push_back({.definition = definition.id});
    OpenAml aml(content);
    ARISObjDefList objects = OpenAml::Objects(aml.Model(), 22);
    objects.Sort(1, 0, 0, english);
    EXPECT_THAT(Guids(objects), ElementsAre("5", "7", "4", "8", "1", "3", "6", "2"));
    objects.Sort(1, 0, 0, german);
    EXPECT_THAT(Guids(objects), ElementsAre("5", "7", "4", "8", "1", "3", "6", "2"));
}

TEST(XmlOccurrence, OccurrencesStandInTheOrderOfTheFile) {
    RepositoryText content = OneFunction();
    content.root.definitions.push_back({.id = "G"});
    content.root.models[0].occurrences = {
        {.definition = "F", .x = 3}, {.definition = "G", .x = 9}, {.definition = "F", .x = 1}};
    content.root.models.push_back({.id = "M2", .occurrences = {{.definition = "F", .x = 2}}});
    OpenAml aml(content);
    std::vector<std::int32_t> positions;
    for (const ARISObjOcc& occurrence : OpenAml::Objects(aml.Model(), 22).Get(0)->OccList())
        positions.push_back(occurrence->X());
    EXPECT_THAT(positions, ElementsAre(3, 1, 2));
}

TEST(XmlOccurrence, PositionTakesAll32Bits) {
    RepositoryText content = OneFunction();
    content.root.models[0].occurrences[0].x = std::numeric_limits<std::int32_t>::min();
    content.root.models[0].occurrences[0].y = std::numeric_limits<std::int32_t>::max();
    OpenAml aml(content);
    EXPECT_EQ(OnlyOccurrence(aml)->X(), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(OnlyOccurrence(aml)->Y(), std::numeric_limits<std::int32_t>::max());
}

TEST(XmlOccurrence, MissingPositionIsTheOrigin) {
    OpenAml aml(WithOccurrence("", ""));
    EXPECT_EQ(OnlyOccurrence(aml)->X(), 0);
    EXPECT_EQ(OnlyOccurrence(aml)->Y(), 0);
    OpenAml half(WithOccurrence("", "<Position Pos.Y=\" +12 \"/>"));
    EXPECT_EQ(OnlyOccurrence(half)->X(), 0);
    EXPECT_EQ(OnlyOccurrence(half)->Y(), 12);
}

TEST(XmlOccurrence, PositionIsItsOwnAndNotThatOfABendPoint) {
    OpenAml aml(WithOccurrence("",
                               "<CxnOcc><Position Pos.X=\"none\" Pos.Y=\"9\"/></CxnOcc>"
                               "<AttrOcc><Size Size.dX=\"none\"/></AttrOcc>"
                               "<Position Pos.X=\"1\" Pos.Y=\"2\"/><Position Pos.X=\"3\" Pos.Y=\"4\"/>"));
    EXPECT_EQ(OnlyOccurrence(aml)->X(), 1);
    EXPECT_EQ(OnlyOccurrence(aml)->Y(), 2);
}

TEST(XmlOccurrence, SymbolIsItsOwnElseTheDefinitionsElseZero) {
    RepositoryText content = OneFunction({.id = "F", .symbol = "ST_OPR_XOR_1"});
    content.root.definitions.push_back({.id = "G"});
    content.root.models[0].occurrences = {
        {.definition = "F", .symbol = "ST_OPR_AND_1"}, {.definition = "F"}, {.definition = "G"}};
    OpenAml aml(content);
    const ARISObjDefList objects = OpenAml::Objects(aml.Model(), 22);
    EXPECT_EQ(objects.Get(0)->OccList().Get(0)->SymbolNum(), 42);
    EXPECT_EQ(objects.Get(0)->OccList().Get(1)->SymbolNum(), 44);
    EXPECT_EQ(objects.Get(1)->OccList().Get(0)->SymbolNum(), 0);
}

TEST(XmlOccurrence, AnEmptySymbolIsNone) {
    OpenAml aml(WithOccurrence("SymbolNum=\" \"", ""));
    EXPECT_EQ(OnlyOccurrence(aml)->SymbolNum(), 0);
}

TEST(XmlOccurrence, DefinitionMayStandBehindTheModelAndBlanksAroundItsId) {
    OpenAml aml(
        AmlGroupDocument("<Model Model.ID=\"M\" Model.Type=\"13\"><ObjOcc ObjDef.IdRef=\" F \"/></Model>"
                         "<ObjDef ObjDef.ID=\"F\" TypeNum=\"22\"/>"));
    EXPECT_EQ(aml.Function()->OccList().Count(), 1);
}

/// Three objects with connections of two types among them, in a chosen order.
RepositoryText Connected() {
    RepositoryText content;
    content.root.definitions = {
        {.id = "a",
         .connections = {{"c1", "43", "b"}, {"c2", "44", "b"}, {"c3", "43", "c"}, {"c4", "43", "b"}}},
        {.id = "b", .connections = {{"c5", "43", "a"}, {"c6", "43", "b"}}},
        {.id = "c", .connections = {{"c7", "43", "b"}, {"c8", "43", "a"}}}};
    content.root.models = {
        {.id = "M", .occurrences = {{.definition = "a"}, {.definition = "b"}, {.definition = "c"}}}};
    return content;
}

std::vector<std::string> Ends(const ARISCxnDefList& connections) {
    std::vector<std::string> ends;
    for (const ARISCxnDef& connection : connections)
        ends.push_back(std::string(connection->SourceObjDef()->Guid()) +
                       std::string(connection->TargetObjDef()->Guid()));
    return ends;
}

TEST(XmlConnection, OutgoingStandAsTheSourceListsThem) {
    OpenAml aml(Connected());
    const ARISObjDef object = OpenAml::Objects(aml.Model(), 22).Get(0);
    EXPECT_THAT(Ends(Connections(object, CxnKind::outgoing, 43)), ElementsAre("ab", "ac", "ab"));
    EXPECT_THAT(Ends(Connections(object, CxnKind::outgoing, 44)), ElementsAre("ab"));
}

TEST(XmlConnection, IncomingStandInTheOrderOfTheFile) {
    OpenAml aml(Connected());
    const ARISObjDef object = OpenAml::Objects(aml.Model(), 22).Get(1);
    EXPECT_THAT(Ends(Connections(object, CxnKind::incoming, 43)), ElementsAre("ab", "ab", "bb", "cb"));
}

TEST(XmlConnection, AnotherKindGivesBothEndsInTheOrderOfTheFile) {
    OpenAml aml(Connected());
    const ARISObjDefList objects = OpenAml::Objects(aml.Model(), 22);
    EXPECT_THAT(Ends(Connections(objects.Get(0), 3, 43)), ElementsAre("ab", "ac", "ab", "ba", "ca"));
    EXPECT_THAT(Ends(Connections(objects.Get(1), 0, 43)), ElementsAre("ab", "ab", "ba", "bb", "cb"));
    EXPECT_THAT(Ends(Connections(objects.Get(2), -1, 44)), ElementsAre());
}

TEST(XmlConnection, ListRefusesAFilterAndAnotherConstant) {
    OpenAml aml(Connected());
    const ARISObjDef object = OpenAml::Objects(aml.Model(), 22).Get(0);
    EXPECT_THROW(object->CxnListFilter(4, "x", english, 43, connectionFilterConstant), Failure);
    EXPECT_THROW(object->CxnListFilter(4, "", english, 43, 0), Failure);
}

TEST(XmlConnection, LongFormCountsByItsMiddle) {
    RepositoryText content = OneFunction(
        {.id = "F",
         .connections = {
             {"1", "OT_FUNC.CT_CRT_1.OT_EVT", "F"}, {"2", "OT_A.407.OT_B", "F"}, {"3", "44", "F"}}});
    OpenAml aml(content);
    EXPECT_EQ(Connections(aml.Function(), CxnKind::outgoing, 44).Count(), 2);
    EXPECT_EQ(Connections(aml.Function(), CxnKind::outgoing, 407).Count(), 1);
    EXPECT_TRUE(aml.Catalogue().UnknownTypes().empty());
}

TEST(XmlConnection, OccurrencesAreTheElementsThatNameIt) {
    OpenAml aml(AmlGroupDocument(
        "<Model Model.ID=\"M\" Model.Type=\"13\"><ObjOcc ObjDef.IdRef=\"F\">"
        "<CxnOcc CxnOcc.ID=\"o\" CxnDef.IdRef=\"C\"/><CxnOcc CxnOcc.ID=\"o\" CxnDef.IdRef=\"C\" "
        "ToObjOcc.IdRef=\"nowhere\"/></ObjOcc></Model>"
        "<ObjDef ObjDef.ID=\"F\" TypeNum=\"22\"><CxnDef CxnDef.ID=\"C\" CxnDef.Type=\"43\" "
        "ToObjDef.IdRef=\"F\"/>"
        "<CxnDef CxnDef.ID=\"U\" CxnDef.Type=\"44\" ToObjDef.IdRef=\"F\"/></ObjDef>"));
    EXPECT_EQ(Connections(aml.Function(), CxnKind::outgoing, 43).Get(0)->OccList().Count(), 2);
    EXPECT_EQ(Connections(aml.Function(), CxnKind::outgoing, 44).Get(0)->OccList().Count(), 0);
    EXPECT_EQ(aml.Catalogue().Dangling().Total(), 0U);
}

TEST(XmlAssignedModels, StandInTheOrderOfTheListWhoseBlanksAreAnyhow) {
    OpenAml aml(AmlGroupDocument(
        "<ObjDef ObjDef.ID=\"F\" TypeNum=\"22\" LinkedModels.IdRefs=\"  M3 M \n\t M2  \"/>"
        "<Model Model.ID=\"M\" Model.Type=\"13\"><ObjOcc ObjDef.IdRef=\"F\"/></Model>"
        "<Model Model.ID=\"M2\" Model.Type=\"13\"/><Model Model.ID=\"M3\" Model.Type=\"13\"/>"));
    EXPECT_THAT(Guids(aml.Function()->AssignedModels()), ElementsAre("M3", "M", "M2"));
}

TEST(XmlAssignedModels, ABlankListIsEmpty) {
    OpenAml aml(
        AmlGroupDocument("<ObjDef ObjDef.ID=\"F\" TypeNum=\"22\" LinkedModels.IdRefs=\"  \"/>"
                         "<Model Model.ID=\"M\" Model.Type=\"13\"><ObjOcc ObjDef.IdRef=\"F\"/></Model>"));
    EXPECT_EQ(aml.Function()->AssignedModels().Count(), 0);
    EXPECT_EQ(aml.Catalogue().Dangling().Total(), 0U);
}

TEST(XmlDangling, ReferencesToNothingAreLeftOutAndCountedBySort) {
    RepositoryText content;
    content.root.definitions = {
        {.id = "F",
         .connections = {{"c1", "43", "nothing"}, {"c2", "43", "F"}, {"c3", "43", ""}},
         .assignedModels = {"gone", "M", "gone too", "F"}}};
    content.root.models = {{.id = "M",
                            .occurrences = {{.definition = "F", .drawnConnections = {"c2", "no", "no", ""}},
                                            {.definition = "nothing"},
                                            {.definition = ""},
                                            {.definition = "M"}}}};
    OpenAml aml(content);
    EXPECT_EQ(Connections(aml.Function(), CxnKind::outgoing, 43).Count(), 1);
    EXPECT_EQ(aml.Function()->OccList().Count(), 1);
    EXPECT_THAT(Guids(aml.Function()->AssignedModels()), ElementsAre("M"));
    const aris::DanglingReferences& dangling = aml.Catalogue().Dangling();
    EXPECT_EQ(dangling.occurrencesWithoutDefinition, 3U);
    EXPECT_EQ(dangling.connectionsWithoutTarget, 2U);
    EXPECT_EQ(dangling.connectionOccurrencesWithoutDefinition, 3U);
    EXPECT_EQ(dangling.assignedModelsMissing, 4U);
}

TEST(XmlDangling, TenThousandAreCounted) {
    RepositoryText content = OneFunction();
    for (int i = 0; i < 10000; ++i)
        content.root.models[0].occurrences.push_back({.definition = "none" + std::to_string(i)});
    OpenAml aml(content);
    EXPECT_EQ(aml.Catalogue().Dangling().occurrencesWithoutDefinition, 10000U);
    EXPECT_EQ(aml.Function()->OccList().Count(), 1);
}

TEST(XmlDangling, TheFirstOfTwoElementsWithOneIdIsMeant) {
    RepositoryText content = OneFunction({.id = "F", .name = "first"});
    content.root.definitions.push_back({.id = "F", .name = "second"});
    EXPECT_THAT(Names(OpenAml::Objects(OpenAml(content).Model(), 22)), ElementsAre("first"));
}

}  // namespace

}  // namespace wxbrg::test
