#include "platform/HelpBook.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <system_error>

#include "platform/Path.h"

namespace wxbrg {

namespace {

constexpr std::string_view commentBegin = "<!--";
constexpr std::string_view commentEnd = "-->";

std::string_view WithoutBlanksAtEnd(std::string_view text) {
    const std::size_t last = text.find_last_not_of(" \t\r\n");
    return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

/// Cuts the first line off the front of a text: the line without its end and without blanks there.
std::string_view TakeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return WithoutBlanksAtEnd(line);
}

bool IsComment(std::string_view line) {
    return line.starts_with(commentBegin) && line.ends_with(commentEnd);
}

bool IsFence(std::string_view line) {
    return line.starts_with("```");
}

/// The number of a line that begins a page.
std::optional<std::int32_t> PageNumber(std::string_view line) {
    constexpr std::string_view begin = "<!-- page ";
    constexpr std::string_view end = " -->";
    if (!line.starts_with(begin) || !line.ends_with(end) || line.size() <= begin.size() + end.size())
        return {};
    line = line.substr(begin.size(), line.size() - begin.size() - end.size());
    std::int32_t number = 0;
    const auto [stop, failure] = std::from_chars(line.data(), line.data() + line.size(), number);
    if (failure != std::errc{} || stop != line.data() + line.size()) return {};
    return number;
}

/// Blank lines at both ends go, and the title is taken out of the first heading.
void Finish(HelpPage& page) {
    const std::size_t first = page.text.find_first_not_of('\n');
    page.text.erase(0, std::min(first, page.text.size()));
    page.text = WithoutBlanksAtEnd(page.text);
    if (!page.text.empty()) page.text += '\n';
    constexpr std::string_view heading = "# ";
    if (page.text.starts_with(heading))
        page.title = page.text.substr(heading.size(), page.text.find('\n') - heading.size());
}

}  // namespace

std::optional<HelpBook> HelpBook::Read(const std::string& path) {
    std::ifstream file(PathOf(path), std::ios::binary);
    if (!file) return {};
    std::string text;
    std::array<char, 16384> part;
    do {
        file.read(part.data(), part.size());
        text.append(part.data(), static_cast<std::size_t>(file.gcount()));
    } while (file);
    if (file.bad()) return {};
    return HelpBook(text);
}

HelpBook::HelpBook(std::string_view text) {
    bool fenced = false;
    while (!text.empty()) {
        const std::string_view line = TakeLine(text);
        if (IsFence(line)) fenced = !fenced;
        if (const auto number = fenced ? std::nullopt : PageNumber(line))
            pages_.push_back(HelpPage{*number, {}, {}});
        else if (!pages_.empty() && (fenced || !IsComment(line)))
            pages_.back().text.append(line) += '\n';
    }
    std::for_each(pages_.begin(), pages_.end(), Finish);
}

const HelpPage* HelpBook::Page(std::int32_t number) const {
    const auto page = std::find_if(pages_.begin(), pages_.end(), [&](const HelpPage& candidate) {
        return candidate.number == number;
    });
    return page == pages_.end() ? nullptr : &*page;
}

}  // namespace wxbrg
