#include "platform/terminal/lines/FormCaption.h"

#include "support/Text.h"

namespace wxbrg {

char32_t FormCaption::Key() const {
    return accessKey ? UpperCaseKey(text[*accessKey]) : U'\0';
}

FormCaption ToFormCaption(std::string_view caption) {
    const std::u32string marked = ToCharacters(RemoveLineBreaks(caption));
    FormCaption shown;
    for (std::size_t i = 0; i < marked.size(); ++i) {
        if (marked[i] == U'&') {
            if (++i == marked.size()) break;
            if (marked[i] != U'&' && !shown.accessKey) shown.accessKey = shown.text.size();
        }
        shown.text += marked[i];
    }
    return shown;
}

std::string PlainCaption(std::string_view caption) {
    return FromCharacters(ToFormCaption(caption).text);
}

char32_t UpperCaseKey(char32_t key) {
    std::string text;
    AppendCharacter(text, key);
    return ToCharacters(UpperCase(text)).front();
}

}  // namespace wxbrg
