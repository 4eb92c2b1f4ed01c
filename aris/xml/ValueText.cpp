#include "aris/xml/ValueText.h"

namespace wxbrg::xml {

void ValueText::Clear() {
    // The memory of a usual value is kept for the next one.
    constexpr std::size_t usual = std::size_t{64} << 10U;
    text_.clear();
    if (text_.capacity() > usual) text_.shrink_to_fit();
    isMarkup_ = false;
    hasParagraph_ = false;
}

void ValueText::AddPlain(std::string_view piece) {
    if (!isMarkup_) text_.append(piece);
}

void ValueText::AddMarkup(std::string_view element, std::string_view run) {
    if (element == "StyledElement" || element == "SoftHyphen") {
        BeMarkup();
    } else if (element == "PlainText") {
        BeMarkup();
        text_.append(run);
    } else if (element == "LineBreak") {
        BeMarkup();
        text_.push_back('\n');
    } else if (element == "Paragraph") {
        BeMarkup();
        if (hasParagraph_) text_.push_back('\n');
        hasParagraph_ = true;
    }
}

void ValueText::BeMarkup() {
    if (isMarkup_) return;
    isMarkup_ = true;
    text_.clear();
}

}  // namespace wxbrg::xml
