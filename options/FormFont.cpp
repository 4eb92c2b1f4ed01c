#include "options/FormFont.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "options/frmExportOptions.h"
#include "run/modGlobals.h"

namespace wxbrg {

namespace {

constexpr std::int32_t defaultCharacterSet = 1;

/// The character set of a locale (LCID).
struct CharacterSetRow {
    std::uint32_t locale;
    std::int32_t characterSet;
};
constexpr std::array characterSets{
    CharacterSetRow{2052, 134},  // Chinese, simplified
    CharacterSetRow{1042, 129},  // Korean
    CharacterSetRow{1041, 128},  // Japanese
    CharacterSetRow{1028, 136},  // Chinese, traditional
};

std::int32_t CharacterSetOf(std::uint32_t locale) {
    const auto* const row =
        std::find_if(characterSets.begin(), characterSets.end(), [locale](const CharacterSetRow& candidate) {
            return candidate.locale == locale;
        });
    return row == characterSets.end() ? defaultCharacterSet : row->characterSet;
}

const FormFont& DefaultFont() {
    if (!gBlock.gDefaultFont) gBlock.gDefaultFont = gBlock.gPlatform->optionsFormView.DefaultFont();
    return *gBlock.gDefaultFont;
}

}  // namespace

void SetProperFont(FormFont& Font) {
    Font = DefaultFont();
    Font.characterSet = CharacterSetOf(gBlock.gPlatform->userLocale.Number());
}

void Set_NLS_Font_Form(frmExportOptions& Form) {
    SetProperFont(Form.font);
}

}  // namespace wxbrg
