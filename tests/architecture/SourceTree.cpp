#include "tests/architecture/SourceTree.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace wxbrg::architecture {

namespace {

namespace fs = std::filesystem;

bool IsLeftOut(const fs::path& folder) {
    const std::string name = folder.filename().string();
    const bool isCase = folder.parent_path() == "tests/cases" && name != "runner";
    return name.starts_with('.') || name.starts_with("build") || isCase;
}

bool IsWordCharacter(char byte) {
    return std::isalnum(static_cast<unsigned char>(byte)) != 0 || byte == '_';
}

std::string ReadFile(const fs::path& path) {
    std::ifstream file;
    file.exceptions(std::ios::failbit | std::ios::badbit);
    file.open(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

std::vector<TreeFile> ReadTree(std::string_view root, const std::vector<std::string>& endings) {
    std::vector<TreeFile> files;
    for (fs::recursive_directory_iterator entry{fs::path(root)}, end; entry != end; ++entry) {
        const fs::path path = entry->path().lexically_relative(root);
        if (entry->is_directory()) {
            if (IsLeftOut(path)) entry.disable_recursion_pending();
            continue;
        }
        const std::string name = path.filename().string();
        const auto isEnd = [&name](const std::string& ending) {
            return name.ends_with(ending);
        };
        if (std::any_of(endings.begin(), endings.end(), isEnd))
            files.push_back({path.generic_string(), ReadFile(entry->path())});
    }
    std::sort(files.begin(), files.end(), [](const TreeFile& a, const TreeFile& b) {
        return a.path < b.path;
    });
    return files;
}

std::size_t LineCount(std::string_view text) {
    const auto breaks = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    return text.empty() || text.back() == '\n' ? breaks : breaks + 1;
}

bool HoldsWord(std::string_view text, std::string_view word) {
    for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1)) {
        const std::size_t behind = at + word.size();
        const bool startsWord = at == 0 || !IsWordCharacter(text[at - 1]);
        const bool endsWord = behind == text.size() || !IsWordCharacter(text[behind]);
        if (startsWord && endsWord) return true;
    }
    return false;
}

}  // namespace wxbrg::architecture
