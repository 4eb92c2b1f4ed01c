#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace wxbrg {

/// Parts of the Buttons value of a message box; the value is their sum.
namespace BoxStyle {
inline constexpr std::int32_t ok = 0;
inline constexpr std::int32_t okCancel = 1;
inline constexpr std::int32_t yesNo = 4;
inline constexpr std::int32_t buttonSet = 0xF;  ///< mask of the button set
inline constexpr std::int32_t severity = 0xF0;  ///< mask of the severity (16, 32, 48, 64)
inline constexpr std::int32_t warning = 48;
inline constexpr std::int32_t foreground = 65536;
}  // namespace BoxStyle

/// The button that was pressed.
enum class BoxAnswer : std::int32_t { ok = 1, cancel = 2, yes = 6, no = 7 };

class MessageBox {
  public:
    virtual ~MessageBox() = default;
    /// Shows a box and waits for its answer, which is one of the button set in `buttons`.
    virtual BoxAnswer Show(std::string_view title, std::string_view text, std::int32_t buttons) = 0;
    /// Shows what the front end itself has to report, which is no box of the export: in a window of its own
    /// where there are windows, as lines that wait for no answer elsewhere.
    virtual void Report(std::string_view title, std::string_view text) {
        Show(title, text, BoxStyle::ok + BoxStyle::warning + BoxStyle::foreground);
    }
};

}  // namespace wxbrg
