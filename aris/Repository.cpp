#include "aris/Repository.h"

#include <algorithm>

namespace wxbrg {

void ARISObjDefList::Sort(std::int16_t firstKey, std::int16_t secondKey, std::int16_t thirdKey,
                          std::int32_t locale) {
    if (firstKey != nameAttribute || secondKey != 0 || thirdKey != 0) throw Failure(FailureKind::invalidCall);
    if (Count() < 2) return;
    std::vector<std::pair<std::string, ARISObjDef>> named;
    named.reserve(static_cast<std::size_t>(Count()));
    for (const ARISObjDef& item : *this) named.emplace_back(item->Name(locale), item);
    // The order of UTF-8 bytes is the order of code points.
    std::stable_sort(named.begin(), named.end(), [](const auto& a, const auto& b) {
        return a.first < b.first;
    });
    std::vector<ARISObjDef> sorted;
    sorted.reserve(named.size());
    for (const auto& [name, item] : named) sorted.push_back(item);
    *this = ARISObjDefList(std::move(sorted));
}

}  // namespace wxbrg
