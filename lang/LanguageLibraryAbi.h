#pragma once

#include <cstdint>

/// The two functions that a language library exports, under their plain names. Whoever loads one asks first
/// `wxbrg_language_abi`: a library without that function, or with another answer than `version`, is none of
/// this program's language libraries, and `wxbrg_message` is not to be called.
///
/// The texts belong to the library: a pointer is good as long as the library stays loaded.
namespace wxbrg::LanguageLibraryAbi {

/// Changes with every change of what the functions take, give or promise.
inline constexpr std::uint32_t version = 1;

/// The names to look up, and what stands behind them.
inline constexpr char versionFunctionName[] = "wxbrg_language_abi";
inline constexpr char messageFunctionName[] = "wxbrg_message";
using VersionFunction = std::uint32_t() noexcept;
using MessageFunction = const char*(std::uint32_t number) noexcept;

}  // namespace wxbrg::LanguageLibraryAbi

extern "C" {

/// The `version` that the library was built with.
[[gnu::visibility("default")]] std::uint32_t wxbrg_language_abi() noexcept;

/// The text of a message number in UTF-8, ended by a zero byte, with CR LF between its lines and at most
/// 4,095 bytes long in the code page of its language; null where the number has no text. A text that is
/// there is never empty. Safe to call from any thread.
[[gnu::visibility("default")]] const char* wxbrg_message(std::uint32_t number) noexcept;
}
