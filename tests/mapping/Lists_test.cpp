#include "mapping/StringLists.h"

#include <gmock/gmock.h>

#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Items(std::string_view list, std::string_view delimiter) {
    return TextsOf(ConvertStringListToCollection(list, delimiter));
}

TEST(ConvertStringListToCollection, CutsAtEachDelimiter) {
    EXPECT_THAT(Items("a;b;c", ";"), ElementsAre("a", "b", "c"));
    EXPECT_THAT(Items("alone", ";"), ElementsAre("alone"));
    EXPECT_THAT(Items("a, b ,c", ","), ElementsAre("a", " b ", "c"));
}

TEST(ConvertStringListToCollection, KeepsEmptyItems) {
    EXPECT_THAT(Items(";", ";"), ElementsAre("", ""));
    EXPECT_THAT(Items("a;;b", ";"), ElementsAre("a", "", "b"));
    EXPECT_THAT(Items(";a", ";"), ElementsAre("", "a"));
    EXPECT_THAT(Items("a;", ";"), ElementsAre("a", ""));
}

TEST(ConvertStringListToCollection, HasNothingForAnEmptyList) {
    EXPECT_THAT(Items("", ";"), IsEmpty());
}

TEST(ConvertStringListToCollection, CutsAtTheWholeDelimiterInItsCase) {
    EXPECT_THAT(Items("1and2AND3", "and"), ElementsAre("1", "2AND3"));
    EXPECT_THAT(Items("äÄä", "Ä"), ElementsAre("ä", "ä"));
}

TEST(ConvertStringListToCollection, GivesItemsWithoutKeys) {
    EXPECT_THAT(Items("a;a;A", ";"), ElementsAre("a", "a", "A"));
}

TEST(GetStringListItem, CountsFromZero) {
    EXPECT_EQ(GetStringListItem("a,b,c", 0, ","), "a");
    EXPECT_EQ(GetStringListItem("a,b,c", 1, ","), "b");
    EXPECT_EQ(GetStringListItem("a,b,c", 2, ","), "c");
}

TEST(GetStringListItem, GivesTheLastItemWhereThereAreFewer) {
    EXPECT_EQ(GetStringListItem("a,b,c", 3, ","), "c");
    EXPECT_EQ(GetStringListItem("a,b,c", 32767, ","), "c");
    EXPECT_EQ(GetStringListItem("alone", 2, ","), "alone");
    EXPECT_EQ(GetStringListItem("a,", 5, ","), "");
}

TEST(GetStringListItem, IsEmptyForAnEmptyList) {
    EXPECT_EQ(GetStringListItem("", 0, ","), "");
    EXPECT_EQ(GetStringListItem("", 4, ","), "");
}

class IsMemberTest : public CoreTest {};

TEST_F(IsMemberTest, AMemberLeavesTheContextAndANonMemberClearsIt) {
    const Ref<FakeObject> in = Function("in");
    const Ref<FakeObject> out = Function("out");
    const Collection<ARISObjDef> objects = ObjectsOf({in});
    EXPECT_TRUE(ARIS_ObjDefIsMemberOfCollection(in, objects));
    EXPECT_EQ(gBlock.gFailureContext, "Retrieve collection member");
    EXPECT_FALSE(ARIS_ObjDefIsMemberOfCollection(out, objects));
    EXPECT_EQ(gBlock.gFailureContext, "");
    EXPECT_EQ(gBlock.gCurrentProcedure, "modTest.Test");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(IsMemberTest, AnEmptyEntryIsAMember) {
    const Ref<FakeObject> object = Function("object");
    Collection<Ref<clsPath>> entries;
    entries.Add(nullptr, object->Guid());
    EXPECT_TRUE(ARIS_ObjDefIsMemberOfCollection(object, entries));
}

TEST_F(IsMemberTest, KeysCompareWithoutCase) {
    const Ref<FakeObject> lower = repository.Object(ObjectType::function, "lower", "{abc}");
    const Ref<FakeObject> upper = repository.Object(ObjectType::function, "upper", "{ABC}");
    EXPECT_TRUE(ARIS_ObjDefIsMemberOfCollection(upper, ObjectsOf({lower})));
}

TEST_F(IsMemberTest, AnEmptyHandleEndsTheRun) {
    EXPECT_EQ(EndOf([] {
                  ARIS_ObjDefIsMemberOfCollection(ARISObjDef(), Collection<ARISObjDef>());
              }),
              FailureKind::objectNotSet);
    EXPECT_THAT(Boxes(), ElementsAre("C91 in modUtilities.ARIS_ObjDefIsMemberOfCollection: object not set"));
}

}  // namespace
}  // namespace wxbrg::test
