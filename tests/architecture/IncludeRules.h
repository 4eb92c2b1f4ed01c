#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wxbrg::architecture {

/// One `#include`: what stands between its quotes or angle brackets.
struct Include {
    std::string name;
    bool quoted;

    friend bool operator==(const Include&, const Include&) = default;
};

/// The includes of a source text, in order.
std::vector<Include> IncludesOf(std::string_view source);

/// One `#include` that the layering of the rooms forbids.
struct Violation {
    std::string include;
    std::string reason;

    friend bool operator==(const Violation&, const Violation&) = default;
};

/// The forbidden ones among the includes of a file. `file` is the path from the repository's root, with
/// slashes. The rooms in their order are support, platform, aris, run, options, mapping, data, model, output
/// and cli; the rules are:
///
/// 1. A header includes headers of its own room and of earlier ones. So do the sources of support, platform,
///    aris and cli.
/// 2. Sources of run to output include headers of support to output.
/// 3. A platform implementation (platform/posix and so on) or a repository provider (aris/xml, aris/com) is
///    included by itself, by a main.cpp and by tests; platform/scripted by cli as well.
///
/// The sources of an implementation may include headers of lang as well: what a language library exports is
/// agreed there.
///
/// What stands in quotes is a file of a room, named from the root. Headers of libraries and of the system, in
/// angle brackets, are of no concern here; nor is a file that lies in no room.
std::vector<Violation> IncludeViolations(std::string_view file, const std::vector<Include>& includes);

}  // namespace wxbrg::architecture
