#pragma once

#include <iosfwd>
#include <string>

#include "platform/MessageBox.h"
#include "run/RunExport.h"

namespace wxbrg::cli {

// The transcript of a run: one JSON value a line, in UTF-8.

/// Hands each box on to another message box, and writes it with its answer.
class TranscribingMessageBox : public MessageBox {
  public:
    TranscribingMessageBox(MessageBox& answering, std::ostream& out) : answering_(answering), out_(out) {}
    BoxAnswer Show(std::string_view title, std::string_view text, std::int32_t buttons) override;

  private:
    MessageBox& answering_;
    std::ostream& out_;
};

/// Writes that the name given to the file dialog was refused, because the run reads that file.
void TranscribeRefusal(const std::string& name, std::ostream& out);

/// Writes the last line: how the run ended.
void TranscribeEnding(const RunReport& report, std::ostream& out);

}  // namespace wxbrg::cli
