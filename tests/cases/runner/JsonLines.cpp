#include "tests/cases/runner/JsonLines.h"

#include <cstdint>
#include <map>
#include <stdexcept>

#include "cli/Json.h"
#include "platform/scripted/ScriptLines.h"
#include "support/Text.h"

namespace wxbrg::cases {

namespace {

/// Reads one JSON value and writes its canonical form.
class Canonizer {
  public:
    explicit Canonizer(std::string_view text) : text_(text) {}

    std::string Whole() {
        std::string value = Value();
        if (Peek() != '\0') Fail();
        return value;
    }

  private:
    [[noreturn]] static void Fail() { throw std::invalid_argument("no JSON"); }

    /// The next character that is no blank, which stays; 0 at the end.
    char Peek() {
        while (!text_.empty() && (text_.front() == ' ' || text_.front() == '\t')) text_.remove_prefix(1);
        return text_.empty() ? '\0' : text_.front();
    }
    bool Accept(char wanted) {
        if (Peek() != wanted) return false;
        text_.remove_prefix(1);
        return true;
    }
    void Expect(char wanted) {
        if (!Accept(wanted)) Fail();
    }

    std::string Value() {
        switch (Peek()) {
            case '{':
                return Object();
            case '[':
                return Array();
            case '"':
                return cli::JsonString(String());
            default:
                return Word();
        }
    }

    std::string Object() {
        std::map<std::string, std::string> members;
        Expect('{');
        while (!Accept('}')) {
            if (!members.empty()) Expect(',');
            if (Peek() != '"') Fail();
            const std::string name = String();
            Expect(':');
            if (!members.emplace(name, Value()).second) Fail();
        }
        std::string text;
        for (const auto& [name, value] : members)
            text += (text.empty() ? "" : ", ") + cli::JsonString(name) + ": " + value;
        return "{" + text + "}";
    }

    std::string Array() {
        std::string text;
        Expect('[');
        while (!Accept(']')) {
            if (!text.empty()) {
                Expect(',');
                text += ", ";
            }
            text += Value();
        }
        return "[" + text + "]";
    }

    /// A number, true, false or null.
    std::string Word() {
        const std::size_t length = text_.find_first_not_of("+-.0123456789abcdefghijklmnopqrstuvwxyzE");
        std::string word(text_.substr(0, length));
        if (word.empty()) Fail();
        text_.remove_prefix(word.size());
        return word;
    }

    std::string String() {
        std::string text;
        Expect('"');
        while (true) {
            const std::size_t plain = text_.find_first_of("\"\\");
            if (plain == std::string_view::npos) Fail();
            text += text_.substr(0, plain);
            const char found = text_[plain];
            text_.remove_prefix(plain + 1);
            if (found == '"') return text;
            AppendCharacter(text, Escaped());
        }
    }

    char32_t Escaped() {
        constexpr std::string_view letters = "\"\\/bfnrt";
        constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
        if (text_.empty()) Fail();
        const char letter = text_.front();
        text_.remove_prefix(1);
        if (letter != 'u') {
            const std::size_t at = letters.find(letter);
            if (at == std::string_view::npos) Fail();
            return static_cast<char32_t>(meanings[at]);
        }
        const std::uint32_t unit = Unit();
        if (unit < 0xD800 || unit > 0xDBFF) return unit;
        if (!text_.starts_with("\\u")) Fail();
        text_.remove_prefix(2);
        const std::uint32_t low = Unit();
        if (low < 0xDC00 || low > 0xDFFF) Fail();
        return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
    }

    /// Four hexadecimal digits.
    std::uint32_t Unit() {
        const std::string digits(text_.substr(0, 4));
        if (digits.size() != 4 || digits.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos)
            Fail();
        text_.remove_prefix(4);
        return static_cast<std::uint32_t>(std::stoul(digits, nullptr, 16));
    }

    std::string_view text_;
};

}  // namespace

std::string CanonicalJsonLines(std::string_view text) {
    std::string canonical;
    for (const ScriptLine& line : ScriptLines(text)) {
        try {
            canonical += Canonizer(line.text).Whole() + "\n";
        } catch (const std::invalid_argument&) {
            throw std::invalid_argument("line " + std::to_string(line.number) +
                                        " is no JSON: " + std::string(line.text));
        }
    }
    return canonical;
}

}  // namespace wxbrg::cases
