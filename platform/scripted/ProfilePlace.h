#pragma once

#include <compare>
#include <string>
#include <string_view>

#include "support/Text.h"

namespace wxbrg {

/// Where a stored value stands, in a form that compares: names are folded, and a key has no backslash at its
/// end.
struct ProfilePlace {
    ProfilePlace(std::string_view keyPath, std::string_view valueName)
        : key(UpperCase(keyPath.substr(0, keyPath.find_last_not_of('\\') + 1))), name(UpperCase(valueName)) {}

    auto operator<=>(const ProfilePlace&) const = default;

    std::string key;
    std::string name;
};

}  // namespace wxbrg
