// The names under which the procedures of this room are reported.

#include <gmock/gmock.h>

#include "mapping/NameConversion.h"
#include "mapping/RelatedObjectSearch.h"
#include "mapping/RelatingPaths.h"
#include "mapping/RuleLookups.h"
#include "mapping/RuleTable.h"
#include "mapping/StringLists.h"
#include "mapping/modPath.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

class MappingProcedureNamesTest : public CoreTest {
  protected:
    const std::string rules = "modMappingRule.";
    const std::string paths = "modPath.";
    Collection<ARISObjDef> result;
};

// clang-format off
TEST_F(MappingProcedureNamesTest, Rules) {
    EXPECT_EQ(NameOf([] { CreateDefaultMappingRules(); }), rules + "CreateDefaultMappingRules");
    EXPECT_EQ(NameOf([&] { Find_ARIS_ObjDef_Using_Mapping_Rule({}, result, ""); }),
              rules + "Find_ARIS_ObjDef_Using_Mapping_Rule");
    EXPECT_EQ(NameOf([&] { Find_ARIS_ObjDef({}, result, 0); }), rules + "Find_ARIS_ObjDef");
    EXPECT_EQ(NameOf([] { Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule({}, ""); }),
              rules + "Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule");
    EXPECT_EQ(NameOf([] { Find_ARIS_ObjDef_Attribute({}, 0); }), rules + "Find_ARIS_ObjDef_Attribute");
    EXPECT_EQ(NameOf([&] { Find_Related_ARIS_ObjDef_Using_Mapping_Rule(result, {}, ""); }),
              rules + "Find_Related_ARIS_ObjDef_Using_Mapping_Rule");
    EXPECT_EQ(NameOf([&] { Find_Related_ARIS_ObjDef(result, {}, 0, 0, 0); }), rules + "Find_Related_ARIS_ObjDef");
    EXPECT_EQ(NameOf([] { Find_Relating_Paths_Using_Mapping_Rule({}, {}, {}, ""); }),
              rules + "Find_Relating_Paths_Using_Mapping_Rule");
    EXPECT_EQ(NameOf([] { ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule({}, {}, ""); }),
              rules + "ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule");
    EXPECT_EQ(NameOf([] { ARIS_ObjDef_Conforms_To_Mapping_Rule({}, ""); }),
              rules + "ARIS_ObjDef_Conforms_To_Mapping_Rule");
    EXPECT_EQ(NameOf([] { ConvertARISPersonName({}); }), rules + "ConvertARISPersonName");
}

TEST_F(MappingProcedureNamesTest, PathsAndLists) {
    EXPECT_EQ(NameOf([] { CreatePath({}, {}); }), paths + "CreatePath");
    EXPECT_EQ(NameOf([] { ClonePaths({}); }), paths + "ClonePaths");
    EXPECT_EQ(NameOf([] { ConcatenatePaths({}, {}); }), paths + "ConcatenatePaths");
    EXPECT_EQ(NameOf([&] { ARIS_ObjDefIsMemberOfCollection({}, result); }),
              "modUtilities.ARIS_ObjDefIsMemberOfCollection");
}
// clang-format on

}  // namespace
}  // namespace wxbrg::test
