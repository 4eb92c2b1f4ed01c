#include "mapping/ProfileTokenizer.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

#include "mapping/ProfileGrammar.h"
#include "support/Numbers.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr std::u32string_view separators = U" \t\r\n=";
constexpr std::u32string_view blanks = U" \t\r\n";

/// The places of positions in a text, asked for in ascending order.
class PlaceCounter {
  public:
    explicit PlaceCounter(std::u32string_view text) : text_(text) {}

    TextPlace PlaceOf(std::size_t position) {
        for (; position_ < position; ++position_)
            if (EndsLine(position_)) {
                ++line_;
                lineStart_ = position_ + 1;
            }
        return {line_, position - lineStart_ + 1};
    }

  private:
    bool EndsLine(std::size_t position) const {
        if (text_[position] == U'\r') return !text_.substr(position + 1).starts_with(U'\n');
        return text_[position] == U'\n';
    }

    std::u32string_view text_;
    std::size_t position_ = 0;
    std::size_t line_ = 1;
    std::size_t lineStart_ = 0;
};

/// Finds the next separators behind positions of a text, asked for in ascending order.
class SeparatorSearch {
  public:
    explicit SeparatorSearch(std::u32string_view text) : text_(text) {
        for (std::size_t i = 0; i < separators.size(); ++i) next_[i] = Find(i, 0);
    }

    /// Whether some separator comes, but only after more characters than 16 bits can count.
    bool OverflowsAt(std::size_t position) {
        constexpr std::size_t farthest = std::numeric_limits<std::int16_t>::max();
        bool overflows = false;
        for (std::size_t i = 0; i < separators.size(); ++i) {
            if (next_[i] < position) next_[i] = Find(i, position);
            overflows |= next_[i] != none && next_[i] - position + 1 > farthest;
        }
        return overflows;
    }

  private:
    static constexpr std::size_t none = std::u32string_view::npos;

    std::size_t Find(std::size_t separator, std::size_t position) const {
        return text_.find(separators[separator], position);
    }

    std::u32string_view text_;
    std::array<std::size_t, separators.size()> next_{};  ///< where each was found last, or `none`
};

class Tokenizer {
  public:
    Tokenizer(std::string_view text, char32_t decimalSeparator)
        : all_(ToCharacters(text)),
          upper_(ToCharacters(UpperCase(text))),
          // Blanks at the end of the text separate nothing.
          text_(std::u32string_view(all_).substr(0, all_.find_last_not_of(U' ') + 1)),
          decimalSeparator_(decimalSeparator) {}

    ProfileTokens Tokens() {
        std::size_t at = text_.find_first_not_of(blanks);
        while (at != std::u32string_view::npos) at = text_.find_first_not_of(blanks, TakeAt(at));
        result_.end = places_.PlaceOf(all_.size());
        return std::move(result_);
    }

  private:
    /// Takes the token at a position, which is no blank; returns the position behind it.
    std::size_t TakeAt(std::size_t begin) {
        for (const std::string_view keyword : profileKeywords)
            if (StandsAt(keyword, begin))
                return Add(TokenType::keyword, begin, begin + keyword.size(), std::string(keyword));
        if (text_[begin] == U'=') return Add(TokenType::equals, begin, begin + 1, "=");
        return TakeWord(begin);
    }

    bool StandsAt(std::string_view keyword, std::size_t position) const {
        const std::u32string_view here = std::u32string_view(upper_).substr(position, keyword.size());
        return std::equal(here.begin(), here.end(), keyword.begin(), keyword.end(), [](char32_t a, char b) {
            return a == static_cast<unsigned char>(b);
        });
    }

    std::size_t TakeWord(std::size_t begin) {
        if (separatorSearch_.OverflowsAt(begin) && !result_.overflow)
            result_.overflow = places_.PlaceOf(begin);
        const std::size_t end = text_.find_first_of(separators, begin);
        if (end == std::u32string_view::npos) return text_.size();
        std::string word = Written(begin, end);
        const bool isNumber = IsNumeric(word, decimalSeparator_);
        return Add(isNumber ? TokenType::number : TokenType::word, begin, end, std::move(word));
    }

    std::size_t Add(TokenType type, std::size_t begin, std::size_t end, std::string value) {
        clsMappingRuleToken& token = result_.tokens.emplace_back();
        token.TokenValue = std::move(value);
        token.TokenType = type;
        token.written = Written(begin, end);
        token.place = places_.PlaceOf(begin);
        token.begin = begin;
        token.end = end;
        return end;
    }

    std::string Written(std::size_t begin, std::size_t end) const {
        return FromCharacters(text_.substr(begin, end - begin));
    }

    std::u32string all_;
    std::u32string upper_;
    std::u32string_view text_;
    char32_t decimalSeparator_;
    PlaceCounter places_{all_};
    SeparatorSearch separatorSearch_{text_};
    ProfileTokens result_;
};

}  // namespace

ProfileTokens TokenizeProfile(std::string_view text, char32_t decimalSeparator) {
    return Tokenizer(text, decimalSeparator).Tokens();
}

}  // namespace wxbrg
