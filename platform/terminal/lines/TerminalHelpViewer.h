#pragma once

#include <iosfwd>
#include <string>

#include "platform/HelpViewer.h"

namespace wxbrg {

/// Writes a page of the help as plain text, for a terminal of 80 columns. Only lines of examples may be
/// longer.
class TerminalHelpViewer : public HelpViewer {
  public:
    /// The help files lie in `folder`. The stream outlives the viewer.
    TerminalHelpViewer(std::ostream& out, std::string folder);
    void ShowPage(std::string_view helpFile, std::int32_t number) override;

  private:
    std::ostream& out_;
    std::string folder_;
};

}  // namespace wxbrg
