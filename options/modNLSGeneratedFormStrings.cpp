#include "options/modNLSGeneratedFormStrings.h"

#include "options/MessageTexts.h"
#include "options/frmExportOptions.h"
#include "run/modGlobals.h"

namespace wxbrg {

void SetFormStrings() {
    frmExportOptions& form = *gBlock.gActiveForm;
    form.caption = Get_NLS_String_Message(formCaptionNumber);
    for (std::int32_t number = formCaptionNumber + 1; number <= lastCaptionNumber; ++number) {
        const std::size_t control = FindControl([number](const FormControl& candidate) {
            return candidate.captionNumber == number;
        });
        form.controls.at(control).caption = Get_NLS_String_Message(number);
    }
}

}  // namespace wxbrg
