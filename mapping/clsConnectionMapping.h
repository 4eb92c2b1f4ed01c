#pragma once

#include <cstdint>
#include <string>

namespace wxbrg {

/// One step that a connection rule can take: from an object of one type, along connections of one type in one
/// direction, to objects of another type.
class clsConnectionMapping {
  public:
    std::int32_t CnxKind = 0;  ///< a direction of `CxnKind`; any other value fails where the step is taken
    std::int32_t CnxTypeNum = 0;
    std::int32_t SourceObjTypeNum = 0;  ///< type of the object that the step starts from
    std::int32_t TargetObjTypeNum = 0;  ///< type of the object that the step arrives at
    std::string TargetObjRule;          ///< the rule that goes on from there; empty: the step ends there

    /// Whether the object that the step arrives at is only an intermediate one.
    bool IsChainedConnection() const { return !TargetObjRule.empty(); }
};

}  // namespace wxbrg
