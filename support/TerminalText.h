#pragma once

#include <string>
#include <string_view>

namespace wxbrg {

// Text for a terminal. Names, paths, values and messages come out of files and arguments: everything that
// prints one, to a terminal or where the output may be led to one, shows it by these functions, so that no
// text moves the cursor, colours, reorders or forges a line.

/// Whether a terminal shows a character as such. It does not for control characters (C0 but for the tab, DEL,
/// C1), the line and paragraph separators U+2028 and U+2029, and the controls of the writing direction.
bool IsPrintable(char32_t character);

/// The text on one line: each character that is not printable, line ends with them, becomes its number in the
/// form `\u{1B}`; a byte that is no UTF-8 becomes `\u{FFFD}`, which a character U+FFFD of the text does not.
/// What is printable already stays as it is.
std::string Printable(std::string_view text);

/// Likewise for a text of several lines, with `lineEnd` between them; they are shown with LF, and with
/// `indent` in front of those that are not empty. Other line breaks are shown by their numbers.
std::string PrintableLines(std::string_view text, std::string_view lineEnd, std::string_view indent = {});

/// In front of the lines of a box: a line end in a name that the box shows begins no line of the program's.
inline constexpr std::string_view boxIndent = "  ";

/// Likewise as one field of a line of fields: tabs and line breaks (CR LF, CR or LF) become blanks.
std::string PrintableField(std::string_view text);

/// The printable text in double quotes.
std::string PrintableInQuotes(std::string_view text);

}  // namespace wxbrg
