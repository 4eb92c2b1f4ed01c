#pragma once

#include <array>
#include <string_view>

namespace wxbrg {

/// The switches of the ARIS command line, in upper case; they count in any case. "=", ":" or a blank follows
/// each.
namespace ArisSwitch {
inline constexpr std::string_view user = "/USR";
inline constexpr std::string_view database = "/DB";
inline constexpr std::string_view server = "/SVR";
inline constexpr std::string_view registry = "/REG";
inline constexpr std::string_view selection = "/SEL";
inline constexpr std::string_view locale = "/LOC";

inline constexpr std::array all{user, database, server, registry, selection, locale};
}  // namespace ArisSwitch

}  // namespace wxbrg
