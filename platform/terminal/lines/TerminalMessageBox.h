#pragma once

#include "platform/MessageBox.h"
#include "platform/terminal/lines/Terminal.h"

namespace wxbrg {

/// Message boxes as text and a question by the line. Where the input has ended, a question is answered Yes
/// and any other box OK: nobody is left to go on with, and both questions there are ask whether to end.
class TerminalMessageBox : public MessageBox {
  public:
    TerminalMessageBox(std::istream& in, std::ostream& out) : terminal_(in, out) {}
    BoxAnswer Show(std::string_view title, std::string_view text, std::int32_t buttons) override;
    void Report(std::string_view title, std::string_view text) override;

  private:
    Terminal terminal_;
};

}  // namespace wxbrg
