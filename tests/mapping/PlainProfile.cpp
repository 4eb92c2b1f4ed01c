#include "tests/mapping/PlainProfile.h"

#include <algorithm>
#include <array>
#include <utility>

#include "support/Failure.h"
#include "support/Numbers.h"
#include "support/Text.h"

namespace wxbrg::plain {

namespace {

constexpr auto keywords = std::to_array<std::u32string_view>(
    {U"OBJECT_MAPPING", U"ATTRIBUTE_MAPPING", U"CONNECTION_MAPPING", U"OBJECT_TYPE", U"ATTRIBUTE_TYPE",
     U"SOURCE_OBJECT_TYPE", U"TARGET_OBJECT_TYPE", U"CONNECTION_KIND", U"CONNECTION_TYPE",
     U"TARGET_OBJECT_RULE", U"END"});

/// Takes tokens off the front of what is left of a text.
class Tokenizer {
  public:
    Tokenizer(std::string_view text, char32_t decimalSeparator)
        : all_(ToCharacters(text)),
          upper_(ToCharacters(UpperCase(text))),
          rest_(all_),
          decimalSeparator_(decimalSeparator) {
        while (rest_.ends_with(U' ')) rest_.remove_suffix(1);
        end_ = rest_.size();
        while (rest_.starts_with(U' ')) rest_.remove_prefix(1);
    }

    Tokens All() {
        while (!rest_.empty()) TakeFromRest();
        result_.end = PlaceOf(all_.size());
        return std::move(result_);
    }

  private:
    std::size_t Position() const { return end_ - rest_.size(); }

    void TakeFromRest() {
        for (const std::u32string_view keyword : keywords)
            if (std::u32string_view(upper_).substr(Position(), keyword.size()) == keyword)
                return Take("keyword", keyword.size(), FromCharacters(keyword));
        switch (rest_.front()) {
            case U'=':
                return Take("equals", 1, "=");
            case U'\r':
            case U'\n':
            case U'\t':
            case U' ':
                return Drop(1);
            default:
                return TakeWord();
        }
    }

    void TakeWord() {
        std::size_t end = rest_.size() + 1;
        for (const char32_t separator : {U' ', U'\r', U'\n', U'\t', U'='}) {
            const std::size_t position = rest_.find(separator) + 1;
            if (position == 0) continue;
            if (position > 32767 && !result_.overflow) result_.overflow = PlaceOf(Position());
            end = std::min(end, position);
        }
        if (end > rest_.size()) return Drop(rest_.size());
        const std::string word = FromCharacters(rest_.substr(0, end - 1));
        Take(IsNumeric(word, decimalSeparator_) ? "number" : "word", end - 1, word);
    }

    void Take(std::string kind, std::size_t length, std::string value) {
        result_.tokens.push_back({std::move(kind), std::move(value), FromCharacters(rest_.substr(0, length)),
                                  Position(), PlaceOf(Position())});
        Drop(length);
    }

    void Drop(std::size_t count) {
        rest_.remove_prefix(count);
        while (rest_.starts_with(U' ')) rest_.remove_prefix(1);
    }

    /// Counts lines and columns up to a position, which is no less than the last one.
    TextPlace PlaceOf(std::size_t position) {
        for (; counted_ < position; ++counted_) {
            ++place_.column;
            const bool isCr = all_[counted_] == U'\r';
            const bool beforeLf = counted_ + 1 < all_.size() && all_[counted_ + 1] == U'\n';
            if (all_[counted_] != U'\n' && (!isCr || beforeLf)) continue;
            ++place_.line;
            place_.column = 1;
        }
        return place_;
    }

    std::u32string all_;
    std::u32string upper_;
    std::u32string_view rest_;
    std::size_t end_ = 0;  ///< where the rest ends
    char32_t decimalSeparator_;
    std::size_t counted_ = 0;
    TextPlace place_;
    Tokens result_;
};

/// Thrown behind the last token, wherever the parser is.
struct NoMoreTokens {};

/// Thrown where the run fails.
struct Failed {
    std::int32_t number;
    std::vector<std::string> arguments;
};

/// Reads by the productions of the grammar, a function each.
class Parser {
  public:
    Parser(std::vector<Token> tokens, char32_t decimalSeparator)
        : tokens_(std::move(tokens)), decimalSeparator_(decimalSeparator) {}

    Reading All() {
        try {
            for (;;) TakeClause();
        } catch (const NoMoreTokens&) {
            return std::move(result_);
        } catch (const Failed& failed) {
            result_.endsWith = failed.number;
            result_.arguments = failed.arguments;
        } catch (const Failure& failure) {
            result_.endsWith = failure.Number;
        }
        return std::move(result_);
    }

  private:
    void TakeClause() {
        const std::string sort = Keyword({"OBJECT_MAPPING", "ATTRIBUTE_MAPPING", "CONNECTION_MAPPING"},
                                         R"("OBJECT_MAPPING", "ATTRIBUTE_MAPPING", "CONNECTION_MAPPING")");
        clsMappingRule rule;
        rule.Name = Value("word", 2140);
        if (sort == "OBJECT_MAPPING") TakeObjectClause(std::move(rule));
        if (sort == "ATTRIBUTE_MAPPING") TakeAttributeClause(std::move(rule));
        if (sort == "CONNECTION_MAPPING") TakeConnectionClause(std::move(rule));
    }

    void TakeObjectClause(clsMappingRule rule) {
        Keyword({"OBJECT_TYPE"}, R"("OBJECT_TYPE")");
        do {
            Equals();
            rule.ColObjectMapping.Add({Number(2160)});
        } while (Keyword({"END", "OBJECT_TYPE"}, R"("END", "OBJECT_TYPE")") != "END");
        AddRule(rule);
    }

    void TakeAttributeClause(clsMappingRule rule) {
        Keyword({"ATTRIBUTE_TYPE"}, R"("ATTRIBUTE_TYPE")");
        Equals();
        rule.AttributeMapping = Value("number", 2170);
        Keyword({"END"}, R"("END")");
        if (IsTaken(rule.Name)) throw Failed{457, {}};
        result_.rules.push_back(std::move(rule));
    }

    void TakeConnectionClause(clsMappingRule rule) {
        Keyword({"SOURCE_OBJECT_TYPE"}, R"("SOURCE_OBJECT_TYPE")");
        std::string behind;
        do {
            clsConnectionMapping step;
            Equals();
            step.SourceObjTypeNum = Number(2160);
            Keyword({"TARGET_OBJECT_TYPE"}, R"("TARGET_OBJECT_TYPE")");
            Equals();
            step.TargetObjTypeNum = Number(2160);
            Keyword({"CONNECTION_KIND"}, R"("CONNECTION_KIND")");
            Equals();
            step.CnxKind = Number(2180);
            Keyword({"CONNECTION_TYPE"}, R"("CONNECTION_TYPE")");
            Equals();
            step.CnxTypeNum = Number(2190);
            behind = Keyword({"END", "SOURCE_OBJECT_TYPE", "TARGET_OBJECT_RULE"},
                             R"("SOURCE_OBJECT_TYPE", "TARGET_OBJECT_RULE")");
            if (behind == "TARGET_OBJECT_RULE") {
                Equals();
                step.TargetObjRule = Value("word", 2140);
                behind = Keyword({"SOURCE_OBJECT_TYPE", "END"}, R"("SOURCE_OBJECT_TYPE", "END")");
            }
            rule.ColConnectionMapping.Add(step);
        } while (behind != "END");
        AddRule(rule);
    }

    void AddRule(const clsMappingRule& rule) {
        if (IsTaken(rule.Name))
            result_.doubledNames.push_back(rule.Name);
        else
            result_.rules.push_back(rule);
    }

    bool IsTaken(const std::string& name) const {
        return std::any_of(result_.rules.begin(), result_.rules.end(), [&](const clsMappingRule& rule) {
            return UpperCase(rule.Name) == UpperCase(name);
        });
    }

    const Token& Next() {
        if (next_ == tokens_.size()) throw NoMoreTokens();
        return tokens_[next_++];
    }

    std::string Keyword(const std::vector<std::string>& accepted, const std::string& expected) {
        const Token& token = Next();
        if (token.kind != "keyword" ||
            std::find(accepted.begin(), accepted.end(), token.value) == accepted.end())
            throw Failed{2130, {token.value, expected}};
        return token.value;
    }

    std::string Value(const std::string& kind, std::int32_t failure) {
        const Token& token = Next();
        if (token.kind != kind) throw Failed{failure, {token.value}};
        return token.value;
    }

    void Equals() { Value("equals", 2150); }

    std::int32_t Number(std::int32_t failure) { return ToInt32(Value("number", failure), decimalSeparator_); }

    std::vector<Token> tokens_;
    std::size_t next_ = 0;
    char32_t decimalSeparator_;
    Reading result_;
};

}  // namespace

Tokens Tokenize(std::string_view text, char32_t decimalSeparator) {
    return Tokenizer(text, decimalSeparator).All();
}

Reading Read(std::string_view text, char32_t decimalSeparator) {
    Tokens tokens = Tokenize(text, decimalSeparator);
    if (tokens.overflow) return {{}, {}, FailureKind::overflow, {}, true};
    return Parser(std::move(tokens.tokens), decimalSeparator).All();
}

}  // namespace wxbrg::plain
