#include "mapping/StringLists.h"

#include <algorithm>

namespace wxbrg {

namespace {

Collection<std::string> Split(std::string_view list, std::string_view delimiter) {
    Collection<std::string> items;
    if (list.empty()) return items;
    std::size_t from = 0;
    for (std::size_t found = list.find(delimiter); found != std::string_view::npos;
         found = list.find(delimiter, from)) {
        items.Add(std::string(list.substr(from, found - from)));
        from = found + delimiter.size();
    }
    items.Add(std::string(list.substr(from)));
    return items;
}

}  // namespace

Collection<std::string> ConvertStringListToCollection(std::string_view list, std::string_view delimiter) {
    const NamedScope scope("modUtilities.ConvertStringListToCollection");
    Collection<std::string> items = Split(list, delimiter);
    scope.End();
    return items;
}

std::string GetStringListItem(std::string_view list, std::int16_t index, std::string_view delimiter) {
    const NamedScope scope("modUtilities.GetStringListItem");
    const Collection<std::string> items = Split(list, delimiter);
    std::string item;
    if (!items.IsEmpty()) item = items.Item(std::min<std::int32_t>(index + 1, items.Count()));
    scope.End();
    return item;
}

}  // namespace wxbrg
