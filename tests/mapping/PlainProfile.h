#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mapping/ProfileTable.h"
#include "mapping/clsMappingRuleToken.h"

/// How a run reads a mapping profile, worded as plainly as it can be: no table of states, nothing that is
/// remembered for speed, and nothing of the tokenizer and the parser of the product, which tests hold against
/// it.
namespace wxbrg::plain {

struct Token {
    std::string kind;  ///< "keyword", "word", "number" or "equals"
    std::string value;
    std::string written;
    std::size_t begin = 0;  ///< in characters, from 0
    TextPlace place;

    bool operator==(const Token&) const = default;
};

struct Tokens {
    std::vector<Token> tokens;
    std::optional<TextPlace> overflow;  ///< the first word that a separator is too far from
    TextPlace end;
};

Tokens Tokenize(std::string_view text, char32_t decimalSeparator);

/// What comes of the text of a profile, which is not empty.
struct Reading {
    RuleTable rules;                        ///< up to the failure
    std::vector<std::string> doubledNames;  ///< which the warning 2110 reports
    std::int32_t endsWith = 0;              ///< the number of the failure that ends the run, or 0
    std::vector<std::string> arguments;     ///< of that failure
    bool failsInTokenizer = false;
};

Reading Read(std::string_view text, char32_t decimalSeparator);

}  // namespace wxbrg::plain
