#pragma once

#include "platform/OptionsFormView.h"

namespace wxbrg {

class frmExportOptions;

/// Sets the font of a form for the user's language. Its controls draw with the font of their form.
void Set_NLS_Font_Form(frmExportOptions& Form);

/// The character set of the user's locale, and all else as in the platform's own font.
void SetProperFont(FormFont& Font);

}  // namespace wxbrg
