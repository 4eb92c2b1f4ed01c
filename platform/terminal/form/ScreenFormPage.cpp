#include "platform/terminal/form/ScreenFormPage.h"

#include <algorithm>

#include "platform/terminal/form/ScreenText.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr std::size_t markWidth = 4;  // "[x] "

std::u32string_view MarkOf(const FormControlRow& row) {
    if (row.kind == FormControlKind::checkBox) return row.checked ? U"[x] " : U"[ ] ";
    return row.checked ? U"(o) " : U"( ) ";
}

void PutPart(ScreenPicture& picture, ScreenPoint at, const FormCaption& caption, TextPart part,
             ScreenStyle style) {
    const std::u32string_view text = std::u32string_view(caption.text).substr(part.start, part.length);
    picture.Put(at, text, style);
    if (!caption.accessKey || *caption.accessKey < part.start) return;
    const std::size_t place = *caption.accessKey - part.start;
    if (place >= text.size()) return;
    picture.Put({at.row, at.column + CellsOf(text.substr(0, place))}, text.substr(place, 1), style, true);
}

/// Draws the rows of one page or of one frame from top to bottom.
class PageDrawing {
  public:
    PageDrawing(ScreenPicture& picture, const ScreenFormState& state, ScreenPoint at, std::size_t width)
        : picture_(picture), state_(state), start_(at.row), at_(at), width_(width) {}

    void DrawRows(std::int32_t page, std::string_view frame) {
        const FormControlRow* before = nullptr;
        for (const FormControlRow& row : state_.rows) {
            if (row.page != page || row.frame != frame || row.kind == FormControlKind::tab) continue;
            if (before != nullptr && BeginsGroup(row, *before)) ++at_.row;
            Draw(row);
            before = &row;
        }
    }
    std::size_t Lines() const { return at_.row - start_; }

  private:
    static bool BeginsGroup(const FormControlRow& row, const FormControlRow& before) {
        return row.kind == FormControlKind::label || row.kind == FormControlKind::frame ||
               before.kind == FormControlKind::textField || before.kind == FormControlKind::frame;
    }

    ScreenStyle StyleOf(const FormControlRow& row, ScreenStyle plain) const {
        if (!row.enabled) return ScreenStyle::disabled;
        return row.name == state_.focus ? ScreenStyle::focus : plain;
    }

    void Draw(const FormControlRow& row) {
        switch (row.kind) {
            case FormControlKind::checkBox:
            case FormControlKind::optionButton:
                return DrawMarked(row);
            case FormControlKind::textField:
                return DrawField(row);
            case FormControlKind::frame:
                return DrawFrame(row);
            default:
                return DrawLines(row, ScreenStyle::plain);
        }
    }

    void DrawLines(const FormControlRow& row, ScreenStyle style) {
        const FormCaption caption = ToFormCaption(row.caption);
        for (const TextPart& part : WrapText(caption.text, width_)) {
            PutPart(picture_, at_, caption, part, style);
            ++at_.row;
        }
    }

    void DrawMarked(const FormControlRow& row) {
        const ScreenStyle style = StyleOf(row, ScreenStyle::plain);
        if (row.name == state_.focus) picture_.cursor = {at_.row, at_.column + 1};
        picture_.Put(at_, MarkOf(row), style);
        at_.column += markWidth;
        width_ -= markWidth;
        DrawLines(row, style);
        at_.column -= markWidth;
        width_ += markWidth;
    }

    void DrawField(const FormControlRow& row) {
        std::u32string text = ToCharacters(row.text);
        if (row.name == state_.focus) {
            const std::u32string_view before = std::u32string_view(text).substr(0, state_.cursor);
            picture_.cursor = {at_.row, at_.column + 1 + CellsOf(before)};
        }
        text.resize(std::max(text.size(), row.maximumLength), U' ');
        picture_.Put(at_, U"[", ScreenStyle::plain);
        picture_.Put({at_.row, at_.column + 1}, text, StyleOf(row, ScreenStyle::field));
        picture_.Put({at_.row, at_.column + 1 + CellsOf(text)}, U"]", ScreenStyle::plain);
        ++at_.row;
    }

    void DrawFrame(const FormControlRow& row) {
        const std::size_t top = at_.row;
        PageDrawing inside(picture_, state_, {top + 1, at_.column + 2}, width_ - 4);
        inside.DrawRows(row.page, row.name);
        const std::size_t bottom = top + 1 + inside.Lines();
        const std::u32string line(width_ - 2, U'─');
        picture_.Put({top, at_.column}, U"┌" + line + U"┐", ScreenStyle::frame);
        FormCaption caption = ToFormCaption(row.caption);
        caption.text = U' ' + std::u32string(CutToWidth(caption.text, width_ - 6)) + U' ';
        if (caption.accessKey) ++*caption.accessKey;
        PutCaption(picture_, {top, at_.column + 2}, caption, ScreenStyle::plain);
        for (std::size_t line_row = top + 1; line_row < bottom; ++line_row) {
            picture_.Put({line_row, at_.column}, U"│", ScreenStyle::frame);
            picture_.Put({line_row, at_.column + width_ - 1}, U"│", ScreenStyle::frame);
        }
        picture_.Put({bottom, at_.column}, U"└" + line + U"┘", ScreenStyle::frame);
        at_.row = bottom + 1;
    }

    ScreenPicture& picture_;
    const ScreenFormState& state_;
    std::size_t start_;
    ScreenPoint at_;
    std::size_t width_;
};

}  // namespace

void PutCaption(ScreenPicture& picture, ScreenPoint at, const FormCaption& caption, ScreenStyle style) {
    PutPart(picture, at, caption, {0, caption.text.size()}, style);
}

std::size_t DrawFormPage(ScreenPicture& picture, const ScreenFormState& state, std::int32_t page,
                         ScreenPoint at, std::size_t width) {
    PageDrawing drawing(picture, state, at, width);
    drawing.DrawRows(page, {});
    return drawing.Lines();
}

}  // namespace wxbrg
