#include "mapping/ProfileDiff.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "mapping/ProfileText.h"
#include "support/TerminalText.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

using RulesByName = std::unordered_map<std::string, const clsMappingRule*>;

RulesByName ByName(const RuleTable& rules) {
    RulesByName byName;
    for (const clsMappingRule& rule : rules) byName.emplace(UpperCase(rule.Name), &rule);
    return byName;
}

/// Takes away what is the same at the beginning and at the end of both.
void DropCommon(std::vector<std::string>& before, std::vector<std::string>& now) {
    const auto same = [](const std::string& a, const std::string& b) {
        return UpperCase(a) == UpperCase(b);
    };
    const auto [begin1, begin2] = std::mismatch(before.begin(), before.end(), now.begin(), now.end(), same);
    before.erase(before.begin(), begin1);
    now.erase(now.begin(), begin2);
    const auto [end1, end2] = std::mismatch(before.rbegin(), before.rend(), now.rbegin(), now.rend(), same);
    before.erase(end1.base(), before.end());
    now.erase(end2.base(), now.end());
}

std::string_view WordOf(RuleChange change) {
    switch (change) {
        case RuleChange::added:
            return "added";
        case RuleChange::missing:
            return "missing";
        case RuleChange::changed:
            break;
    }
    return "changed";
}

std::string CountText(const std::vector<RuleDifference>& differences, RuleChange change) {
    const auto count =
        std::count_if(differences.begin(), differences.end(), [&](const RuleDifference& difference) {
            return difference.change == change;
        });
    return std::to_string(count) + " " + std::string(WordOf(change));
}

}  // namespace

std::vector<RuleDifference> DifferencesOf(const RuleTable& first, const RuleTable& second) {
    std::vector<RuleDifference> differences;
    const RulesByName known = ByName(first);
    const RulesByName other = ByName(second);
    for (const clsMappingRule& rule : first) {
        const auto found = other.find(UpperCase(rule.Name));
        if (found == other.end()) {
            differences.push_back({RuleChange::missing, rule.Name, EntryTexts(rule), {}});
            continue;
        }
        std::vector<std::string> before = EntryTexts(rule);
        std::vector<std::string> now = EntryTexts(*found->second);
        DropCommon(before, now);
        if (!before.empty() || !now.empty())
            differences.push_back({RuleChange::changed, rule.Name, std::move(before), std::move(now)});
    }
    for (const clsMappingRule& rule : second)
        if (!known.contains(UpperCase(rule.Name)))
            differences.push_back({RuleChange::added, rule.Name, {}, EntryTexts(rule)});
    return differences;
}

std::string DifferenceText(const std::vector<RuleDifference>& differences, std::size_t ruleCount) {
    std::string text;
    std::size_t touched = 0;
    for (const RuleDifference& difference : differences) {
        text += Printable(difference.name) + ": " + std::string(WordOf(difference.change)) + "\n";
        for (const std::string& entry : difference.before) text += "  - " + Printable(entry) + "\n";
        for (const std::string& entry : difference.now) text += "  + " + Printable(entry) + "\n";
        if (difference.change != RuleChange::added) ++touched;
    }
    return text + "Rules: " + CountText(differences, RuleChange::changed) + ", " +
           CountText(differences, RuleChange::missing) + ", " + CountText(differences, RuleChange::added) +
           ", " + std::to_string(ruleCount - touched) + " the same\n";
}

}  // namespace wxbrg
