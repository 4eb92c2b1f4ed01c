// How clsIOHandler finds and reads the mapping profile beside the program and cuts it into tokens.

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "mapping/ProfileFile.h"
#include "mapping/ProfileGrammar.h"
#include "mapping/clsMappingRuleToken.h"
#include "run/Frame.h"
#include "run/clsIOHandler.h"
#include "support/Numbers.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

/// Cuts a text into tokens, from its start to its end, in time linear in its size.
class ProfileTokenizer {
  public:
    explicit ProfileTokenizer(std::string_view text)
        : text_(ToCharacters(Trim(text))), upper_(ToCharacters(UpperCase(Trim(text)))) {
        next_.fill(0);
    }

    Collection<Ref<clsMappingRuleToken>> Tokens() {
        while (position_ < text_.size())
            if (!TakeKeyword() && !TakeEquals() && !TakeSeparator()) TakeWord();
        return std::move(tokens_);
    }

  private:
    static constexpr std::u32string_view separators = U" \r\n\t=";

    void Add(std::int32_t type, std::string value) {
        const Ref<clsMappingRuleToken> token = gBlock.gPool.Create<clsMappingRuleToken>();
        token->TokenType = type;
        token->TokenValue = std::move(value);
        tokens_.Add(token);
    }

    /// Passes over as many characters and the blanks behind them.
    void Drop(std::size_t count) {
        position_ += count;
        while (position_ < text_.size() && text_[position_] == U' ') ++position_;
    }

    /// Whether the rest of the text, in upper case, begins with a keyword.
    bool StartsWith(std::string_view keyword) const {
        return upper_.size() - position_ >= keyword.size() &&
               std::equal(keyword.begin(), keyword.end(), upper_.data() + position_, [](char a, char32_t b) {
                   return static_cast<unsigned char>(a) == b;
               });
    }

    bool TakeKeyword() {
        for (const std::string_view keyword : profileKeywords) {
            if (!StartsWith(keyword)) continue;
            Add(TokenType::keyword, std::string(keyword));
            Drop(keyword.size());
            return true;
        }
        return false;
    }

    bool TakeEquals() {
        if (text_[position_] != U'=') return false;
        Add(TokenType::equals, "=");
        Drop(1);
        return true;
    }

    bool TakeSeparator() {
        if (separators.find(text_[position_]) == std::u32string_view::npos) return false;
        Drop(1);
        return true;
    }

    /// The position of the first separator of one sort in the rest of the text, from 1; 0 where there is
    /// none. Fails with 6 beyond 16 bits.
    std::int16_t PositionOf(std::size_t separator) {
        std::size_t& next = next_[separator];
        if (next < position_) next = position_;
        while (next < text_.size() && text_[next] != separators[separator]) ++next;
        return next == text_.size() ? std::int16_t{0} : NarrowTo<std::int16_t>(next - position_ + 1);
    }

    /// A word ends in front of the next separator. One that no separator follows is lost.
    void TakeWord() {
        std::int16_t end = 0;
        for (std::size_t separator = 0; separator < separators.size(); ++separator) {
            const std::int16_t found = PositionOf(separator);
            if (found != 0 && (end == 0 || found < end)) end = found;
        }
        if (end == 0) {
            position_ = text_.size();
            return;
        }
        const std::string word =
            FromCharacters(std::u32string_view(text_).substr(position_, static_cast<std::size_t>(end) - 1));
        Add(IsNumeric(word, DecimalSeparator()) ? TokenType::number : TokenType::word, word);
        Drop(static_cast<std::size_t>(end) - 1);
    }

    std::u32string text_;
    std::u32string upper_;
    std::size_t position_ = 0;
    std::array<std::size_t, separators.size()> next_;  ///< where each separator was found last
    Collection<Ref<clsMappingRuleToken>> tokens_;
};

}  // namespace

std::string clsIOHandler::ReadMappingProfile() {
    return Procedure("clsIOHandler.ReadMappingProfile", [&](Frame&) {
        const std::string path = MappingProfilePath(*gBlock.gPlatform);
        MappingProfileFound = !path.empty() && FileExists(path);
        return MappingProfileFound ? ReadFile(path) : std::string();
    });
}

Collection<Ref<clsMappingRuleToken>> clsIOHandler::TokenizeMappingProfile(const std::string& Text) {
    return Procedure("clsIOHandler.TokenizeMappingProfile", [&](Frame&) {
        return ProfileTokenizer(Text).Tokens();
    });
}

}  // namespace wxbrg
