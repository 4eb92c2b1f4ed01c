#pragma once

#include <string_view>

namespace wxbrg {

/// The buttons of the options form by their names.
namespace FormButton {
inline constexpr std::string_view help = "cmdHelp";
inline constexpr std::string_view ok = "cmdOK";  ///< the default button
inline constexpr std::string_view cancel = "cmdCancel";
inline constexpr std::string_view apply = "cmdApply";
}  // namespace FormButton

}  // namespace wxbrg
