#include "tests/cases/runner/Case.h"

#include <algorithm>

namespace wxbrg::cases {

namespace {

/// From the folder of all cases.
constexpr std::string_view folders[] = {
#include "CaseFolders.inc"
};

std::vector<Case> ListCases() {
    std::vector<Case> cases;
    for (const std::string_view folder : folders)
        cases.push_back({std::filesystem::path(folder).filename().string(), CasesFolder() / folder});
    return cases;
}

}  // namespace

const std::filesystem::path& CasesFolder() {
    static const std::filesystem::path folder = std::filesystem::path(WXBRG_SOURCE_FOLDER) / "tests/cases";
    return folder;
}

const std::vector<Case>& AllCases() {
    static const std::vector<Case> cases = ListCases();
    return cases;
}

const Case* FindCase(std::string_view name) {
    const auto found = std::find_if(AllCases().begin(), AllCases().end(), [name](const Case& candidate) {
        return candidate.name == name;
    });
    return found == AllCases().end() ? nullptr : &*found;
}

Files ExpectedFiles(const Case& wanted) {
    return ReadFiles(wanted.folder / "expected");
}

}  // namespace wxbrg::cases
