#include "lang/LanguageLibraryAbi.h"

std::uint32_t wxbrg_language_abi() noexcept {
    return wxbrg::LanguageLibraryAbi::version;
}

const char* wxbrg_message(std::uint32_t number) noexcept {
    switch (number) {
        case 1000:
            return "Hello";
        case 1010:
            return "Grüße €";
        default:
            return nullptr;
    }
}
