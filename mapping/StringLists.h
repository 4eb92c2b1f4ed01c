#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "aris/Repository.h"
#include "run/Frame.h"
#include "run/modGlobals.h"
#include "support/Collection.h"

namespace wxbrg {

/// Whether an object is in a collection that is keyed by the Guid of ARIS objects.
template <class Entry>
bool ARIS_ObjDefIsMemberOfCollection(const ARISObjDef& item, const Collection<Entry>& col) {
    return Procedure("modUtilities.ARIS_ObjDefIsMemberOfCollection", [&](Frame&) {
        gBlock.gFailureContext = "Retrieve collection member";
        const bool member = col.Find(item->Guid()) != nullptr;
        if (!member) gBlock.gFailureContext = "";
        return member;
    });
}

/// The items of a list between its delimiters, unchanged: empty ones and one behind a last delimiter
/// count. An empty list has none.
Collection<std::string> ConvertStringListToCollection(std::string_view list, std::string_view delimiter);

/// The item at `index`, from 0; with fewer items the last one, and for an empty list the empty text.
std::string GetStringListItem(std::string_view list, std::int16_t index, std::string_view delimiter);

}  // namespace wxbrg
