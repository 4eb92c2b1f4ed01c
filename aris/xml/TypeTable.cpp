#include "aris/xml/TypeTable.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>
#include <vector>

#include "aris/xml/BuiltInTypes.h"
#include "aris/xml/ExportFile.h"
#include "aris/xml/Spelling.h"
#include "support/Failure.h"
#include "support/Text.h"

namespace wxbrg::xml {

namespace {

/// What a kind's API names begin with and its rows in a file are marked by; in the order of `TypeKind`.
constexpr std::array<std::string_view, typeKindCount> kindMarks = {"MT", "OT", "CT", "AT", "ST"};

constexpr std::size_t Index(TypeKind kind) {
    return static_cast<std::size_t>(kind);
}

constexpr bool RowsAreSortedAndUnique() {
    const auto inOrder = [](const TypeRow& a, const TypeRow& b) {
        return a.kind != b.kind ? a.kind < b.kind : a.number < b.number;
    };
    return std::adjacent_find(std::begin(builtInTypes), std::end(builtInTypes), std::not_fn(inOrder)) ==
           std::end(builtInTypes);
}

constexpr bool ApiNamesAreUnique() {
    for (const TypeRow& row : builtInTypes)
        for (const TypeRow* other = &row + 1; other != std::end(builtInTypes); ++other)
            if (other->apiName == row.apiName) return false;
    return true;
}

constexpr bool ApiNamesTellTheirKind() {
    for (const TypeRow& row : builtInTypes) {
        const std::string_view mark = kindMarks[Index(row.kind)];
        if (!row.apiName.starts_with(mark) || row.apiName.substr(mark.size(), 1) != "_") return false;
    }
    return true;
}

constexpr std::int32_t BuiltInNumber(std::string_view apiName) {
    for (const TypeRow& row : builtInTypes)
        if (row.apiName == apiName) return row.number;
    return -1;
}

static_assert(RowsAreSortedAndUnique());
static_assert(ApiNamesAreUnique());
static_assert(ApiNamesTellTheirKind());
static_assert(BuiltInNumber("AT_NAME") == nameAttribute);
static_assert(BuiltInNumber("MT_EEPC") == 13 && BuiltInNumber("OT_FUNC") == 22 &&
              BuiltInNumber("CT_ACTIV_1") == 43 && BuiltInNumber("ST_OPR_AND_1") == 42);

std::vector<std::string_view> SplitAtTabs(std::string_view line) {
    std::vector<std::string_view> fields;
    for (;;) {
        const std::size_t tab = line.find('\t');
        fields.push_back(line.substr(0, tab));
        if (tab == std::string_view::npos) return fields;
        line.remove_prefix(tab + 1);
    }
}

}  // namespace

TypeTable::TypeTable() {
    for (const TypeRow& row : builtInTypes) Add(row.kind, row.apiName, row.number, row.readableName);
}

void TypeTable::Add(TypeKind kind, std::string_view apiName, std::int32_t number,
                    std::string_view readableName) {
    Kind& types = kinds_[Index(kind)];
    types.byApiName.insert_or_assign(std::string(apiName), Type{number, std::string(readableName)});
    types.byNumber.insert_or_assign(number, std::string(readableName));
}

std::string TypeTable::AddLine(std::string_view line) {
    const std::vector<std::string_view> fields = SplitAtTabs(line);
    if (fields.size() < 4) return "the row has fewer than the four fields kind, API name, number and name";
    const auto mark = std::find(kindMarks.begin(), kindMarks.end(), Trim(fields[0]));
    if (mark == kindMarks.end())
        return ShortInQuotes(fields[0]) + " is none of the kinds MT, OT, CT, AT and ST";
    const std::string_view apiName = Trim(fields[1]);
    if (apiName.empty()) return "the row has no API name";
    const std::optional<std::int32_t> number = WholeNumber(fields[2]);
    if (!number || *number < 0) return ShortInQuotes(fields[2]) + " is no number from 0 to 2147483647";
    const std::string_view readableName = Trim(fields[3]);
    if (readableName.empty()) return "the row has no readable name";
    Add(static_cast<TypeKind>(mark - kindMarks.begin()), apiName, *number, readableName);
    return {};
}

void TypeTable::AddFile(const std::string& file) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    const std::string content = ExportFile(file).ReadAll();
    std::string_view rest = content;
    if (rest.starts_with(byteOrderMark)) rest.remove_prefix(byteOrderMark.size());
    for (std::size_t number = 1; !rest.empty(); ++number) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        std::string_view line = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (Trim(line).empty() || line.starts_with('#')) continue;
        const std::string wrong = IsUtf8(line) ? AddLine(line) : "the text is not UTF-8";
        if (!wrong.empty())
            throw Failure(FailureKind::invalidFileFormat, file + ", line " + std::to_string(number) + ": " +
                                                              wrong +
                                                              ". Correct this row of the types file.");
    }
}

const TypeTable::Type* TypeTable::Find(TypeKind kind, std::string_view apiName) const {
    const auto& types = kinds_[Index(kind)].byApiName;
    const auto found = types.find(apiName);
    return found == types.end() ? nullptr : &found->second;
}

const std::string* TypeTable::NameOf(TypeKind kind, std::int32_t number) const {
    const auto& names = kinds_[Index(kind)].byNumber;
    const auto found = names.find(number);
    return found == names.end() ? nullptr : &found->second;
}

}  // namespace wxbrg::xml
