#include "tests/architecture/IncludeRules.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

namespace wxbrg::architecture {

namespace {

constexpr std::array<std::string_view, 10> rooms = {"support", "platform", "aris",  "run",    "options",
                                                    "mapping", "data",     "model", "output", "cli"};
/// The rooms whose sources know each other, from `run` to `output`.
constexpr std::ptrdiff_t firstOfCore = 3;
constexpr std::ptrdiff_t lastOfCore = 8;

std::string_view TopFolder(std::string_view path) {
    const std::size_t slash = path.find('/');
    return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
}

std::string_view Folder(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
}

std::string_view FileName(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

/// Place of a path's room in the order, or nothing for a path in no room.
std::optional<std::ptrdiff_t> RoomOf(std::string_view path) {
    const auto* const found = std::find(rooms.begin(), rooms.end(), TopFolder(path));
    if (found == rooms.end()) return std::nullopt;
    return std::distance(rooms.begin(), found);
}

/// A sub-folder of `platform/` is an implementation, one of `aris/` a provider.
bool IsImplementation(std::string_view path) {
    const std::string_view top = TopFolder(path);
    return (top == "platform" || top == "aris") && Folder(path) != top;
}

bool MayUseImplementation(std::string_view file, std::string_view include) {
    return Folder(file) == Folder(include) ||
           (TopFolder(file) == "cli" && Folder(include) == "platform/scripted");
}

std::string Quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

/// Why a file of a room may not include another one; empty where it may.
std::string Objection(std::string_view file, std::ptrdiff_t room, std::string_view include) {
    const std::optional<std::ptrdiff_t> other = RoomOf(include);
    if (!other) {
        const bool loadsLanguages = IsImplementation(file) && file.ends_with(".cpp");
        if (loadsLanguages && TopFolder(include) == "lang") return {};
        return "it is no file of a room, named from the root";
    }
    if (IsImplementation(include) && !MayUseImplementation(file, include))
        return Quoted(Folder(include)) + " is for main.cpp and tests alone";
    if (*other <= room) return {};
    const bool coreSource = file.ends_with(".cpp") && room >= firstOfCore && room <= lastOfCore;
    if (coreSource && *other <= lastOfCore) return {};
    return Quoted(TopFolder(file)) + " comes before " + Quoted(TopFolder(include));
}

}  // namespace

std::vector<Include> IncludesOf(std::string_view source) {
    std::vector<Include> includes;
    const auto skipBlanks = [](std::string_view& line) {
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    };
    while (!source.empty()) {
        std::string_view line = source.substr(0, source.find('\n'));
        source.remove_prefix(std::min(line.size() + 1, source.size()));
        skipBlanks(line);
        if (!line.starts_with('#')) continue;
        line.remove_prefix(1);
        skipBlanks(line);
        constexpr std::string_view directive = "include";
        if (!line.starts_with(directive)) continue;
        line.remove_prefix(directive.size());
        skipBlanks(line);
        const bool quoted = line.starts_with('"');
        if (!quoted && !line.starts_with('<')) continue;
        const std::size_t end = line.find(quoted ? '"' : '>', 1);
        if (end != std::string_view::npos) includes.push_back({std::string(line.substr(1, end - 1)), quoted});
    }
    return includes;
}

std::vector<Violation> IncludeViolations(std::string_view file, const std::vector<Include>& includes) {
    std::vector<Violation> violations;
    const std::optional<std::ptrdiff_t> room = RoomOf(file);
    if (!room || FileName(file) == "main.cpp" || file == "platform/posix/PosixSystem.cpp") return violations;
    for (const Include& include : includes) {
        if (!include.quoted && !RoomOf(include.name)) continue;
        if (std::string reason = Objection(file, *room, include.name); !reason.empty())
            violations.push_back({include.name, std::move(reason)});
    }
    return violations;
}

}  // namespace wxbrg::architecture
