#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace wxbrg::cases {

/// A line of one of the lists beside the cases: what stands between its tabs.
using ListLine = std::vector<std::string>;

/// The lines of the list `name`, without comments (#) and empty lines. Throws std::invalid_argument, with
/// name and line number, for a line that has not `columns` columns.
std::vector<ListLine> ParseList(const std::string& name, std::string_view text, std::size_t columns);

// The readers below read a list in the folder of all cases, and throw like `ParseList` and `ReadFile`.

/// A case that does not pass yet.
struct PendingCase {
    std::string name;
    std::string reason;
};
std::vector<PendingCase> ReadPending();
bool IsPending(const std::string& name);

/// The sorts of facts about the program that cases show.
namespace factKind {
inline constexpr const char* message = "message";
inline constexpr const char* rule = "rule";
inline constexpr const char* option = "option";
inline constexpr const char* keyword = "keyword";
}  // namespace factKind

/// A fact that no case can show.
struct Excuse {
    std::string kind;
    std::string fact;
    std::string reason;
};
/// A range of message numbers stands as one line in the file, and as one excuse for each here.
std::vector<Excuse> ReadExcuses();

/// A rule or option, and a case whose result depends on it.
struct ShownFact {
    std::string kind;
    std::string fact;
    std::string caseName;
};
std::vector<ShownFact> ReadShown();

}  // namespace wxbrg::cases
