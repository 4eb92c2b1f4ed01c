#include "run/clsARIS_Interface.h"

#include "run/Frame.h"

namespace wxbrg {

clsARIS_Interface::clsARIS_Interface() {
    const NamedScope scope("clsARIS_Interface.Class_Initialize");
    scope.End();
}

}  // namespace wxbrg
