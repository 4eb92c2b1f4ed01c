// What clsIOHandler does with mapping rules.

#include "mapping/modMappingRule_rules.h"
#include "run/Frame.h"
#include "run/clsIOHandler.h"

namespace wxbrg {

void clsIOHandler::ParseMappingFile() {
    Procedure("clsIOHandler.ParseMappingFile", [](Frame&) {
        CreateDefaultMappingRules();
    });
}

}  // namespace wxbrg
