#include "lang/LanguageLibraryAbi.h"

std::uint32_t wxbrg_language_abi() noexcept {
    return wxbrg::LanguageLibraryAbi::version + 1;
}

const char* wxbrg_message(std::uint32_t /*number*/) noexcept {
    return "of another version";
}
