#include "cli/NearestWord.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

#include "support/Text.h"

namespace wxbrg::cli {

namespace {

/// The number of characters to insert, drop or replace to make one word of the other.
std::size_t EditDistance(const std::u32string& a, const std::u32string& b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, replaced});
        }
    }
    return row.back();
}

}  // namespace

std::string Nearest(std::string_view word, const std::vector<std::string>& candidates) {
    const std::u32string from = ToCharacters(word);
    const auto distance = [&](const std::string& candidate) {
        return EditDistance(from, ToCharacters(candidate));
    };
    const auto nearest = std::min_element(candidates.begin(), candidates.end(),
                                          [&](const std::string& a, const std::string& b) {
                                              return distance(a) < distance(b);
                                          });
    return nearest == candidates.end() ? std::string() : *nearest;
}

}  // namespace wxbrg::cli
