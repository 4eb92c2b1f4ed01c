#include "lang/LanguageLibraryAbi.h"

std::uint32_t wxbrg_language_abi() noexcept {
    return wxbrg::LanguageLibraryAbi::version;
}
