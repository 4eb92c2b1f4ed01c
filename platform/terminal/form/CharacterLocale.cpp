#include "platform/terminal/form/CharacterLocale.h"

#include <langinfo.h>

#include <clocale>
#include <string_view>

namespace wxbrg {

CharacterLocale::CharacterLocale() : before_(std::setlocale(LC_CTYPE, nullptr)) {
    const bool isKnown = std::setlocale(LC_CTYPE, "") != nullptr;
    if (!isKnown || std::string_view(nl_langinfo(CODESET)) == "ANSI_X3.4-1968")
        std::setlocale(LC_CTYPE, "C.UTF-8");
}

CharacterLocale::~CharacterLocale() {
    std::setlocale(LC_CTYPE, before_.c_str());
}

}  // namespace wxbrg
