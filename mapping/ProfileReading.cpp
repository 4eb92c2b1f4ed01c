#include "mapping/ProfileReading.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "mapping/ProfileGrammar.h"
#include "support/Numbers.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr std::u32string_view separators = U"\t\n\r =";

/// The positions at which the lines of a text begin.
std::vector<std::size_t> LineStarts(std::u32string_view text) {
    std::vector<std::size_t> starts{0};
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool insideLineEnd = text[i] == U'\r' && i + 1 < text.size() && text[i + 1] == U'\n';
        if ((text[i] == U'\r' || text[i] == U'\n') && !insideLineEnd) starts.push_back(i + 1);
    }
    return starts;
}

/// The positions of a character in a text.
std::vector<std::size_t> PositionsOf(char32_t character, std::u32string_view text) {
    std::vector<std::size_t> positions;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] == character) positions.push_back(i);
    return positions;
}

class ProfileReader {
  public:
    ProfileReader(std::string_view text, char32_t decimalSeparator)
        : text_(ToCharacters(text)),
          upper_(ToCharacters(UpperCase(text))),
          lines_(LineStarts(text_)),
          decimalSeparator_(decimalSeparator) {
        for (std::size_t i = 0; i < separators.size(); ++i) found_[i] = PositionsOf(separators[i], text_);
        reading_.end = PlaceOf(text_.size());
    }

    ProfileReading Read() {
        // Blanks at the end of the text separate nothing.
        const std::size_t size = text_.find_last_not_of(U' ') + 1;
        text_.resize(size);
        upper_.resize(size);
        for (std::size_t at = text_.find_first_not_of(blanks); at != std::u32string::npos;
             at = text_.find_first_not_of(blanks, at))
            at = TakeAt(at);
        return std::move(reading_);
    }

  private:
    static constexpr std::u32string_view blanks = U"\t\n\r ";

    TextPlace PlaceOf(std::size_t position) const {
        const auto behind = std::upper_bound(lines_.begin(), lines_.end(), position);
        return {static_cast<std::size_t>(behind - lines_.begin()), position - *std::prev(behind) + 1};
    }

    std::size_t Add(std::int32_t type, std::string value, std::size_t begin, std::size_t length) {
        std::string written = FromCharacters(std::u32string_view(text_).substr(begin, length));
        if (value.empty()) value = written;
        reading_.tokens.push_back(
            {type, std::move(value), std::move(written), PlaceOf(begin), begin, begin + length});
        return begin + length;
    }

    bool StandsAt(std::string_view keyword, std::size_t position) const {
        const std::u32string_view here = std::u32string_view(upper_).substr(position, keyword.size());
        return std::equal(here.begin(), here.end(), keyword.begin(), keyword.end(), [](char32_t a, char b) {
            return a == static_cast<unsigned char>(b);
        });
    }

    /// Reads the token at a position, which is no blank; returns the position behind it.
    std::size_t TakeAt(std::size_t begin) {
        for (const std::string_view keyword : profileKeywords)
            if (StandsAt(keyword, begin))
                return Add(TokenType::keyword, std::string(keyword), begin, keyword.size());
        if (text_[begin] == U'=') return Add(TokenType::equals, {}, begin, 1);
        NoteOverflow(begin);
        const std::size_t end = text_.find_first_of(separators, begin);
        if (end == std::u32string::npos) return text_.size();
        const std::string word = FromCharacters(std::u32string_view(text_).substr(begin, end - begin));
        const bool isNumber = IsNumeric(word, decimalSeparator_);
        return Add(isNumber ? TokenType::number : TokenType::word, word, begin, end - begin);
    }

    void NoteOverflow(std::size_t begin) {
        constexpr std::size_t farthest = std::numeric_limits<std::int16_t>::max();
        const bool overflows = std::any_of(found_.begin(), found_.end(), [&](const auto& positions) {
            const auto next = std::lower_bound(positions.begin(), positions.end(), begin);
            return next != positions.end() && *next < text_.size() && *next - begin + 1 > farthest;
        });
        if (overflows && !reading_.overflow) reading_.overflow = PlaceOf(begin);
    }

    std::u32string text_;
    std::u32string upper_;
    std::vector<std::size_t> lines_;
    char32_t decimalSeparator_;
    std::array<std::vector<std::size_t>, separators.size()> found_;
    ProfileReading reading_;
};

}  // namespace

ProfileReading ReadProfile(std::string_view text, char32_t decimalSeparator) {
    return ProfileReader(text, decimalSeparator).Read();
}

}  // namespace wxbrg
