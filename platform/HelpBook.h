#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wxbrg {

/// One page of a help file.
struct HelpPage {
    std::int32_t number = 0;
    std::string title;  ///< text of the first heading; empty when there is none
    /// Markdown, the heading first, lines ended by LF, without comment lines. Links to other pages read
    /// `[text](#50003)`.
    std::string text;
};

/// A help file: pages of Markdown in UTF-8. A page begins behind a line `<!-- page 50003 -->` and goes to the
/// next such line; what comes before the first one belongs to no page. Other lines that are a comment as a
/// whole are left out, except within a fenced block. Where a number comes twice, the first page counts.
class HelpBook {
  public:
    /// The help file at a path; nothing when it cannot be read.
    static std::optional<HelpBook> Read(const std::string& path);
    /// A help file of this content.
    explicit HelpBook(std::string_view text);

    /// The page of a number; null when there is none. Valid as long as the book is.
    const HelpPage* Page(std::int32_t number) const;
    /// All pages in their order.
    const std::vector<HelpPage>& Pages() const { return pages_; }

  private:
    std::vector<HelpPage> pages_;
};

}  // namespace wxbrg
