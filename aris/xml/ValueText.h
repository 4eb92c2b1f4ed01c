#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace wxbrg::xml {

/// The text of a value as it is read: plain text, or the markup of styled text, whose runs are joined.
class ValueText {
  public:
    /// Begins with nothing.
    void Clear();

    /// Text that is directly in the value. It counts unless the value holds markup.
    void AddPlain(std::string_view piece);
    /// An element of the markup, at any depth: "PlainText" is a run with the text `run`, "LineBreak" and each
    /// "Paragraph" after the first a line break. An element that is no markup changes nothing.
    void AddMarkup(std::string_view element, std::string_view run);

    const std::string& Get() const { return text_; }

  private:
    void BeMarkup();

    std::string text_;
    bool isMarkup_ = false;
    bool hasParagraph_ = false;
};

}  // namespace wxbrg::xml
