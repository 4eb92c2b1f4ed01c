#pragma once

#include <compare>
#include <string>
#include <string_view>

#include "platform/ProfileStore.h"
#include "support/Text.h"

namespace wxbrg {

/// Where a stored value is, in a form that compares: names are folded, and a key has no backslash at its
/// end.
struct ProfilePlace {
    ProfilePlace(std::string_view keyPath, std::string_view valueName)
        : key(UpperCase(PlainProfileKey(keyPath))), name(UpperCase(valueName)) {}

    auto operator<=>(const ProfilePlace&) const = default;

    std::string key;
    std::string name;
};

}  // namespace wxbrg
