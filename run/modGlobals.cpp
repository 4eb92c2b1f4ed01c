#include "run/modGlobals.h"

namespace wxbrg {

GlobalBlock gBlock;

void RenewGlobals() {
    gBlock = GlobalBlock();
}

}  // namespace wxbrg
