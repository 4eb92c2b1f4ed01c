#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace wxbrg {

/// A caption of the options form as a terminal shows it.
struct FormCaption {
    std::u32string text;                   ///< on one line, without the marks
    std::optional<std::size_t> accessKey;  ///< place of the access key in `text`

    /// The access key in upper case; 0 where there is none.
    char32_t Key() const;
};

/// Takes a caption of the language library apart: "&" marks the character behind it as the access key, "&&"
/// stands for the character itself. Of several marks the first one counts.
FormCaption ToFormCaption(std::string_view caption);

/// The caption alone, for plain lines.
std::string PlainCaption(std::string_view caption);

/// A key in upper case, so that it compares with that of a caption.
char32_t UpperCaseKey(char32_t key);

}  // namespace wxbrg
