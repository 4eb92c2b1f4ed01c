#pragma once

#include <optional>
#include <string_view>

#include "aris/Repository.h"
#include "mapping/PathCollection.h"

/// Whether, and on which paths, a connection rule leads from one object to another. A rule name that the
/// table does not hold ends the run with 2100.
namespace wxbrg {

/// All paths by which a rule leads from one object to another, behind the paths of `prefixPaths` that end at
/// `fromObj`. Nothing, which is not an empty collection, where one of the two is not drawn anywhere. Cost:
/// one relation test for each object and rule on the ways, however many paths these make.
std::optional<PathCollection> Find_Relating_Paths_Using_Mapping_Rule(const PathCollection& prefixPaths,
                                                                     const ARISObjDef& fromObj,
                                                                     const ARISObjDef& toObj,
                                                                     std::string_view ruleName);

/// Whether a rule leads from one object to another. A positive answer leaves this procedure's name in
/// `gCurrentProcedure`.
bool ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule(const ARISObjDef& fromObj,
                                                              const ARISObjDef& toObj,
                                                              std::string_view ruleName);

}  // namespace wxbrg
