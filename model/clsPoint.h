#pragma once

#include <cstdint>

namespace wxbrg {

/// A position in the process window, in window units from its centre, y upward.
class clsPoint {
  public:
    std::int32_t XPos = 0;
    std::int32_t YPos = 0;
};

}  // namespace wxbrg
