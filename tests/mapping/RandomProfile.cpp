#include "tests/mapping/RandomProfile.h"

#include <array>
#include <cctype>
#include <limits>
#include <string_view>
#include <vector>

#include "mapping/ProfileGrammar.h"
#include "mapping/ProfileText.h"

namespace wxbrg {

namespace {

std::size_t Below(Engine& engine, std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(engine);
}

bool OneIn(Engine& engine, std::size_t count) {
    return Below(engine, count) == 0;
}

template <class List>
auto OneOf(Engine& engine, const List& list) {
    return list[Below(engine, std::size(list))];
}

std::string RandomKeyword(Engine& engine) {
    std::string keyword{OneOf(engine, profileKeywords)};
    if (OneIn(engine, 3))
        for (char& letter : keyword)
            if (OneIn(engine, 2))
                letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    if (OneIn(engine, 8)) keyword.resize(Below(engine, keyword.size()));
    return keyword;
}

std::string RandomNumber(Engine& engine) {
    static constexpr std::array<std::string_view, 10> odd{
        "2147483647", "2147483648", "-2147483648", "9.5", "1e2", "1e400", "1,5", "+7", "-2147483649", "0.5"};
    if (OneIn(engine, 4)) return std::string(OneOf(engine, odd));
    return std::to_string(std::uniform_int_distribution<int>(-3, 1500)(engine));
}

std::string RandomPiece(Engine& engine) {
    static constexpr std::array<std::string_view, 24> pieces{
        " ",     "  ",   "\t", "\r", "\n", "\r\n",   "=", " = ", "a",  "Rolle", "ü",
        "ß",     "x",    "_",  "-",  ".",  "\u00A0", "ı", "\f",  "\v", "7",     "\xF0\x9F\x98\x80",
        "END_X", "\n \n"};
    switch (Below(engine, 4)) {
        case 0:
            return RandomKeyword(engine);
        case 1:
            return RandomNumber(engine);
        default:
            return std::string(OneOf(engine, pieces));
    }
}

std::int32_t RandomType(Engine& engine) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (OneIn(engine, 20)) return OneIn(engine, 2) ? Limits::min() : Limits::max();
    return std::uniform_int_distribution<std::int32_t>(-1, 400)(engine);
}

clsConnectionMapping RandomStep(Engine& engine) {
    clsConnectionMapping step{
        RandomType(engine), RandomType(engine), RandomType(engine), RandomType(engine), {}};
    if (OneIn(engine, 3)) step.TargetObjRule = "RULE_" + std::to_string(Below(engine, 9));
    return step;
}

clsMappingRule RandomRule(Engine& engine, std::size_t number) {
    static constexpr std::array<std::string_view, 5> stems{"RULE_", "Größe-", "\u00A0", "O.",
                                                           "\xF0\x9F\x98\x80"};
    clsMappingRule rule;
    rule.Name = std::string(OneOf(engine, stems)) + std::to_string(number) + "_";
    const std::size_t entries = 1 + Below(engine, 4);
    switch (Below(engine, 3)) {
        case 0:
            for (std::size_t i = 0; i < entries; ++i) rule.ColObjectMapping.Add({RandomType(engine)});
            break;
        case 1:
            rule.AttributeMapping = OneIn(engine, 9) ? "9.5" : std::to_string(RandomType(engine));
            break;
        default:
            for (std::size_t i = 0; i < entries; ++i) rule.ColConnectionMapping.Add(RandomStep(engine));
    }
    return rule;
}

}  // namespace

std::string RandomText(Engine& engine, std::size_t pieces) {
    std::string text;
    for (std::size_t i = Below(engine, pieces + 1); i > 0; --i) {
        text += RandomPiece(engine);
        if (OneIn(engine, 3)) text += " ";
    }
    return text;
}

std::string RandomLongText(Engine& engine) {
    std::string text;
    for (std::size_t i = 2 + Below(engine, 4); i > 0; --i) {
        text += RandomText(engine, 12);
        text += std::string(Below(engine, 2) * (32700 + Below(engine, 80)),
                            OneOf(engine, std::string_view(" \n=x\t")));
    }
    return text + RandomText(engine, 12);
}

std::string RandomProfileText(Engine& engine) {
    std::string text = ProfileText(RandomTable(engine));
    for (std::size_t mistakes = Below(engine, 3); mistakes > 0 && !text.empty(); --mistakes) {
        const std::size_t at = Below(engine, text.size());
        const std::size_t end = text.find_first_of(" \n", at);
        if (OneIn(engine, 2))
            text.insert(at, RandomPiece(engine));
        else
            text.replace(at, end == std::string::npos ? end : end - at, RandomPiece(engine));
    }
    return text;
}

RuleTable RandomTable(Engine& engine) {
    RuleTable rules;
    for (std::size_t i = Below(engine, 9); i > 0; --i) rules.push_back(RandomRule(engine, i));
    return rules;
}

}  // namespace wxbrg
