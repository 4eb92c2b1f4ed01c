#pragma once

#include <cstdint>

namespace wxbrg {

/// One ARIS type that conforms to a rule.
class clsObjectMapping {
  public:
    std::int32_t ObjTypeNum = 0;  ///< object type number; model type number in the rule PROCESS
};

}  // namespace wxbrg
