#pragma once

#include <cstdint>
#include <string_view>

namespace wxbrg {

/// Shows pages of the program's help.
class HelpViewer {
  public:
    virtual ~HelpViewer() = default;
    /// Shows one page of a help file, which is named without a folder and lies beside the program. Where the
    /// file or the page is missing, the viewer says so to the user; it never fails.
    virtual void ShowPage(std::string_view helpFile, std::int32_t number) = 0;
};

}  // namespace wxbrg
