#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace wxbrg {

// Text is UTF-8 in memory everywhere, and a character is a code point. "Blank" is U+0020 alone.

/// Number of characters.
std::size_t CharacterCount(std::string_view text);

/// The first `count` characters; the whole text when it has no more.
std::string_view Left(std::string_view text, std::size_t count);

/// As many whole characters as fit into `bytes` bytes.
std::string_view WithinBytes(std::string_view text, std::size_t bytes);

/// The text without its last `count` characters. Throws failure 5 when it has fewer.
std::string_view WithoutLast(std::string_view text, std::size_t count);

/// The text without blanks at its front.
std::string_view TrimLeft(std::string_view text);
/// The text without blanks at both ends.
std::string_view Trim(std::string_view text);

/// Every occurrence of `what` from the text's start becomes `by`; what a replacement brings is not looked at
/// again. Binary and case-sensitive. An empty `what` changes nothing.
std::string Replace(std::string_view text, std::string_view what, std::string_view by);

/// The text in double quotes, as messages show it.
std::string InQuotes(std::string_view text);
/// Likewise its first 60 characters, and "..." for more: for a text out of a file.
std::string ShortInQuotes(std::string_view text);

/// Every run of blanks becomes one blank.
std::string CollapseBlanks(std::string_view text);

/// Each line break (CR LF, CR or LF) becomes one blank.
std::string RemoveLineBreaks(std::string_view text);

/// Each character becomes its upper case by Unicode's simple mapping, one for one, whatever the user's
/// locale: "ß" stays, "ᾳ" becomes "ᾼ". Bytes that are no UTF-8 stay as they are.
std::string UpperCase(std::string_view text);

/// The characters of a text, one code point each; a byte that is no UTF-8 becomes U+FFFD.
std::u32string ToCharacters(std::string_view text);
/// The text of code points.
std::string FromCharacters(std::u32string_view characters);

/// Appends a code point as UTF-8; one that is none (a surrogate, beyond 10FFFF) as U+FFFD.
void AppendCharacter(std::string& text, char32_t character);

/// The length in bytes of the character at the start of a text that is not empty: 1 to 4. A byte that begins
/// no character counts as one.
std::size_t CharacterLength(std::string_view text);

/// Whether the text is valid UTF-8.
bool IsUtf8(std::string_view text);

/// The text with each byte that is no UTF-8 replaced by U+FFFD.
std::string ValidUtf8(std::string_view text);

/// The character at `position` (in bytes, below the text's size), which is then moved behind it. A byte that
/// begins no valid character is read as U+FFFD and passed over alone.
char32_t TakeCharacter(std::string_view text, std::size_t& position);

}  // namespace wxbrg
