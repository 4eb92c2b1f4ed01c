#include "tests/cases/runner/Facts.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <string_view>
#include <vector>

#include "mapping/DefaultMappingRules.h"
#include "options/OptionTable.h"
#include "platform/scripted/ScriptLines.h"
#include "support/Text.h"
#include "tests/cases/runner/Case.h"
#include "tests/cases/runner/JsonLines.h"
#include "tests/cases/runner/Lists.h"
#include "tests/cases/runner/Replay.h"

namespace wxbrg::cases {

namespace {

namespace fs = std::filesystem;

/// What stands in the definition file and is put together outside output/.
constexpr std::array preparedTexts{
    "'ADMIN'",   "'Default Data Structure'",
    "'_STRUCT'", "ALL CONNECTORS",
    "AND",       "AT_LEAST_ONE CONNECTOR",
    "AUTOMATIC", "DATA_STRUCTURE_",
    "FLOAT",     "FROM",
    "HEIGHT",    "LONG",
    "LOOP",      "MANUAL",
    "MAP",       "NOT (",
    "OR",        "PAPERSIZE",
    "SINK",      "SOURCE",
    "STRING",    "TO",
    "WIDTH",     "XPOS",
    "YPOS",
};

bool IsDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

/// The digits at the start of the text.
std::string_view DigitsOf(std::string_view text) {
    const auto* const end = std::find_if_not(text.begin(), text.end(), IsDigit);
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

/// Adds the number at the start of the text, where there is one and `behind` follows it.
void AddNumber(std::string_view text, std::string_view behind, Facts& numbers) {
    const std::string_view digits = DigitsOf(text);
    if (!digits.empty() && text.substr(digits.size()).starts_with(behind)) numbers.emplace(digits);
}

/// Adds the numbers of the notes of a log: "WXB03110I ".
void AddNotes(std::string_view log, Facts& numbers) {
    constexpr std::string_view start = "WXB";
    for (const ScriptLine& line : ScriptLines(log)) {
        if (!line.text.starts_with(start)) continue;
        std::string_view number = line.text.substr(start.size());
        number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
        AddNumber(number, "", numbers);
    }
}

/// Adds the numbers at the start of lines in the texts of boxes.
void AddBoxes(const std::string& transcript, Facts& numbers) {
    const std::string lines =
        Replace(Replace(CanonicalJsonLines(transcript), "\\r\\n", "\n"), "\"text\": \"", "\n");
    for (const ScriptLine& line : ScriptLines(lines)) AddNumber(line.text, "|", numbers);
}

/// Adds the numbers of the words in a repository that are texts of messages 4000 to 4999.
void AddComparedWords(std::string_view repository, Facts& numbers) {
    constexpr std::string_view arguments = "|%1$s|%2$s|%3$s|%4$s";
    for (std::size_t at = repository.find(arguments); at != std::string_view::npos;
         at = repository.find(arguments, at + 1)) {
        const std::string_view number = repository.substr(at - std::min<std::size_t>(at, 4), 4);
        if (number.starts_with('4') && DigitsOf(number).size() == 4) numbers.emplace(number);
    }
}

/// The text without what can stand around a keyword on its line.
std::string_view Bare(std::string_view text) {
    constexpr std::string_view around = " *=(,";
    const std::size_t first = text.find_first_not_of(around);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" =(,'") + 1 - first);
}

bool HoldsCapital(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char letter) {
        return letter >= 'A' && letter <= 'Z';
    });
}

/// Adds a literal if it is a keyword: no name of a procedure, and not without a capital.
void AddLiteral(std::string_view literal, Facts& keywords) {
    const std::string withoutLineEnds = Replace(literal, "\\r\\n", "");
    const std::string_view bare = Bare(withoutLineEnds);
    const bool isProcedure = bare.starts_with("cls") || bare.starts_with("mod");
    if (HoldsCapital(bare) && !isProcedure) keywords.emplace(bare);
}

/// Adds the keywords among the literals of a source.
void AddLiterals(std::string_view source, Facts& keywords) {
    for (const ScriptLine& line : ScriptLines(source)) {
        if (line.text.starts_with("#include")) continue;
        const std::string withoutQuotes = Replace(line.text.substr(0, line.text.find("//")), "\\\"", "");
        std::string_view rest = withoutQuotes;
        for (std::size_t open = rest.find('"'); open != std::string_view::npos; open = rest.find('"')) {
            rest.remove_prefix(open + 1);
            const std::string_view literal = rest.substr(0, rest.find('"'));
            AddLiteral(literal, keywords);
            rest.remove_prefix(std::min(literal.size() + 1, rest.size()));
        }
    }
}

std::vector<const Case*> PassingCases() {
    std::vector<const Case*> passing;
    for (const Case& each : AllCases())
        if (!IsPending(each.name)) passing.push_back(&each);
    return passing;
}

bool IsWordCharacter(char letter) {
    return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_';
}

/// Whether the text holds the keyword, not as a part of a longer word.
bool Holds(std::string_view text, std::string_view keyword) {
    const auto joined = [](char outer, char inner) {
        return IsWordCharacter(outer) && IsWordCharacter(inner) && inner != '_';
    };
    for (std::size_t at = text.find(keyword); at != std::string_view::npos; at = text.find(keyword, at + 1)) {
        const std::size_t behind = at + keyword.size();
        const bool begins = at == 0 || !joined(text[at - 1], keyword.front());
        if (begins && (behind == text.size() || !joined(text[behind], keyword.back()))) return true;
    }
    return false;
}

bool IsDefinitionFile(const std::string& bytes) {
    return bytes.starts_with("/*\r\n");
}

}  // namespace

Facts MessageNumbers() {
    Facts numbers;
    const std::string catalogue = ReadFile(fs::path(WXBRG_SOURCE_FOLDER) / "lang/messages.txt");
    for (const ScriptLine& line : ScriptLines(catalogue)) AddNumber(line.text, " ", numbers);
    return numbers;
}

Facts RuleNames() {
    Facts names;
    for (const auto& row : defaultRules::types) names.emplace(row.rule);
    for (const auto& row : defaultRules::attributes) names.emplace(row.rule);
    for (const auto& row : defaultRules::steps) names.emplace(row.rule);
    return names;
}

Facts OptionNames() {
    Facts names;
    for (const ExportOption& option : storedOptions) names.emplace(option.valueName);
    return names;
}

Facts OutputKeywords() {
    Facts keywords = PreparedTexts();
    for (const auto& entry : fs::directory_iterator(fs::path(WXBRG_SOURCE_FOLDER) / "output"))
        if (entry.path().extension() == ".cpp") AddLiterals(ReadFile(entry.path()), keywords);
    return keywords;
}

Facts PreparedTexts() {
    return {preparedTexts.begin(), preparedTexts.end()};
}

Facts ShownMessageNumbers() {
    Facts shown;
    for (const Case* each : PassingCases()) {
        for (const auto& [name, bytes] : ExpectedFiles(*each))
            if (name == transcriptName)
                AddBoxes(bytes, shown);
            else if (!IsDefinitionFile(bytes))
                AddNotes(bytes, shown);
        AddComparedWords(ReadFile(each->folder / "repository.aml"), shown);
    }
    return shown;
}

Facts ShownKeywords(const Facts& keywords) {
    Facts shown;
    for (const Case* each : PassingCases())
        for (const auto& [name, bytes] : ExpectedFiles(*each))
            for (const std::string& keyword : keywords)
                if (IsDefinitionFile(bytes) && Holds(bytes, keyword)) shown.insert(keyword);
    return shown;
}

}  // namespace wxbrg::cases
