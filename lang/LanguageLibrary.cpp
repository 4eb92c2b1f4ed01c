#include <algorithm>

#include "lang/LanguageLibraryAbi.h"
#include "lang/MessageTable.h"

std::uint32_t wxbrg_language_abi() noexcept {
    return wxbrg::LanguageLibraryAbi::version;
}

const char* wxbrg_message(std::uint32_t number) noexcept {
    // The algorithm of std::ranges is an object that is unique in the whole process, which would keep the
    // library from being unloaded.
    const auto& table = wxbrg::messageTable;
    const auto found = std::lower_bound(table.begin(), table.end(), number,
                                        [](const wxbrg::Message& message, std::uint32_t wanted) {
                                            return message.number < wanted;
                                        });
    return found != table.end() && found->number == number ? found->text : nullptr;
}
