#include "lang/LanguageLibraryAbi.h"

const char* wxbrg_message(std::uint32_t /*number*/) noexcept {
    return "of no version";
}
