#include "tests/cases/runner/Recording.h"

#include "tests/cases/runner/Replay.h"

namespace wxbrg::cases {

bool Record(const Case& wanted, std::ostream& out) {
    const ReplayOutcome outcome = Replay(wanted.folder);
    if (outcome.status != 0) {
        out << wanted.name << " cannot be replayed, exit status " << outcome.status << ":\n" << outcome.err;
        return false;
    }
    const Files before = ExpectedFiles(wanted);
    const std::filesystem::path expected = wanted.folder / "expected";
    std::string changes;
    for (const auto& [name, bytes] : before)
        if (!outcome.files.contains(name)) {
            std::filesystem::remove(expected / name);
            changes += " -" + name;
        }
    for (const auto& [name, bytes] : outcome.files) {
        const auto old = before.find(name);
        if (old != before.end() && old->second == bytes) continue;
        WriteFile(expected / name, bytes);
        changes += (old == before.end() ? " +" : " ") + name;
    }
    out << wanted.name << ":" << (changes.empty() ? " as it was" : changes) << "\n";
    return true;
}

}  // namespace wxbrg::cases
