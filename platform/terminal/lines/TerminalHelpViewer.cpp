#include "platform/terminal/lines/TerminalHelpViewer.h"

#include <algorithm>
#include <ostream>
#include <utility>

#include "platform/HelpBook.h"
#include "platform/Path.h"
#include "support/TerminalText.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

/// Each link to a page becomes its text.
std::string WithoutTargets(std::string_view text) {
    std::string result;
    for (;;) {
        const std::size_t middle = text.find("](#");
        const std::size_t begin = middle == std::string_view::npos ? middle : text.rfind('[', middle);
        const std::size_t end = text.find(')', middle);
        if (begin == std::string_view::npos || end == std::string_view::npos) return result.append(text);
        result.append(text.substr(0, begin)).append(text.substr(begin + 1, middle - begin - 1));
        text.remove_prefix(end + 1);
    }
}

/// A line of Markdown outside of fenced blocks as it is read, a heading with a line under it.
std::string PlainLine(std::string_view line) {
    const std::size_t level = line.starts_with('#') ? line.find_first_not_of('#') : 0;
    if (level == std::string_view::npos) return {};
    line.remove_prefix(level);
    std::string text = Replace(Replace(WithoutTargets(line), "**", ""), "`", "");
    if (level == 0) return text;
    const std::string heading(Trim(text));
    return heading + '\n' + std::string(CharacterCount(heading), level == 1 ? '=' : '-');
}

/// The lines of fenced blocks are indented, for the fences are left out.
std::string PlainText(std::string_view markdown) {
    std::string result;
    bool fenced = false;
    while (!markdown.empty()) {
        const std::size_t end = std::min(markdown.find('\n'), markdown.size());
        const std::string_view line = markdown.substr(0, end);
        markdown.remove_prefix(std::min(end + 1, markdown.size()));
        if (line.starts_with("```"))
            fenced = !fenced;
        else
            result.append(fenced && !line.empty() ? "    " + std::string(line) : PlainLine(line)) += '\n';
    }
    return result;
}

}  // namespace

TerminalHelpViewer::TerminalHelpViewer(std::ostream& out, std::string folder)
    : out_(out), folder_(std::move(folder)) {}

void TerminalHelpViewer::ShowPage(std::string_view helpFile, std::int32_t number) {
    const auto book = HelpBook::Read(FileInFolder(folder_, helpFile));
    out_ << '\n';
    if (!book)
        out_ << "There is no help: the file " << Printable(helpFile) << " cannot be read in the folder "
             << Printable(folder_) << ".\n";
    else if (const HelpPage* page = book->Page(number))
        out_ << PrintableLines(PlainText(page->text), "\n");
    else
        out_ << "There is no help on this: the file " << Printable(helpFile) << " lacks the page " << number
             << ".\n";
    out_ << std::flush;
}

}  // namespace wxbrg
