#include "options/modHelp.h"

#include "options/frmExportOptions.h"
#include "run/modGlobals.h"

namespace wxbrg {

void SetFormHelp() {
    frmExportOptions& form = *gBlock.gActiveForm;
    form.HelpContextID = formHelpNumber;
    for (std::size_t i = 0; i < formControls.size(); ++i)
        form.controls[i].HelpContextID = formControls[i].helpNumber;
}

}  // namespace wxbrg
