#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

namespace wxbrg {

/// Questions and answers by the line, over a pair of streams that outlive it. What several dialogs of one
/// program share is the streams: each may have a terminal of its own over them.
class Terminal {
  public:
    Terminal(std::istream& in, std::ostream& out) : in_(in), out_(out) {}

    /// Prints a text and a line end; CR LF inside it becomes the stream's own line end. What a terminal would
    /// obey is shown by its number, here and in prompts. `indent` comes in front of each line.
    void Print(std::string_view text, std::string_view indent = {});

    /// Makes the terminal sound.
    void Beep();

    /// Prints a prompt and reads the line behind it, without its end and without blanks around it. Nothing
    /// when the input has ended.
    std::optional<std::string> Ask(std::string_view prompt);

    /// Asks until the answer is y, yes, n or no in any case. Nothing when the input has ended.
    std::optional<bool> AskYesOrNo(std::string_view question);

  private:
    std::istream& in_;
    std::ostream& out_;
};

}  // namespace wxbrg
