#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/TerminalText.h"

namespace wxbrg {

/// In cells, as are all sizes and places on a screen.
struct ScreenSize {
    std::size_t width = 0;
    std::size_t height = 0;

    bool operator==(const ScreenSize&) const = default;
};

/// Both count from 0.
struct ScreenPoint {
    std::size_t row = 0;
    std::size_t column = 0;

    bool operator==(const ScreenPoint&) const = default;
};

/// What a piece of text is, for its look.
enum class ScreenStyle { plain, frame, title, strong, focus, field, disabled, hint };

struct ScreenSpan {
    ScreenPoint at;
    std::u32string text;
    ScreenStyle style = ScreenStyle::plain;
    bool accessKey = false;  ///< shown underlined
};

/// What a screen shows: pieces of text on an empty ground, later ones over earlier ones.
struct ScreenPicture {
    std::vector<ScreenSpan> spans;
    std::optional<ScreenPoint> cursor;  ///< nothing: it is hidden

    /// A character that is not printable shows as U+FFFD: on a screen of cells it keeps its one cell.
    void Put(ScreenPoint at, std::u32string_view text, ScreenStyle style, bool accessKey = false) {
        if (text.empty()) return;
        std::u32string shown(text);
        std::replace_if(
            shown.begin(), shown.end(),
            [](char32_t character) {
                return !IsPrintable(character);
            },
            U'\uFFFD');
        spans.push_back({at, std::move(shown), style, accessKey});
    }
};

enum class KeyKind {
    character,
    access,  ///< a character typed with Alt
    tab,
    backTab,
    left,
    right,
    up,
    down,
    home,
    end,
    previousPage,
    nextPage,
    enter,
    escape,
    backspace,
    erase,  ///< the key that deletes what the cursor is on
    help,
    resize,  ///< no key: the screen has another size, or is to be drawn anew
    endOfInput,
    other
};

struct ScreenKey {
    KeyKind kind = KeyKind::other;
    char32_t character = U'\0';  ///< of `character` and `access`
};

/// A terminal that can be drawn on as a whole, instead of line by line. It is used for that between `Enter`
/// and `Leave`; its end leaves it.
class Screen {
  public:
    virtual ~Screen() = default;
    /// The size at this moment.
    virtual ScreenSize Size() const = 0;
    /// False where the terminal turns out not to be able to.
    virtual bool Enter() = 0;
    /// Gives the terminal back as it was, for lines. Nothing happens where it has been left.
    virtual void Leave() = 0;
    virtual void Show(const ScreenPicture& picture) = 0;
    /// Waits for a key.
    virtual ScreenKey ReadKey() = 0;
    virtual void Beep() = 0;
};

}  // namespace wxbrg
