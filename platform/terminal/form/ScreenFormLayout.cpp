#include "platform/terminal/form/ScreenFormLayout.h"

#include <algorithm>
#include <array>

#include "platform/terminal/form/ScreenFormPage.h"
#include "platform/terminal/form/ScreenText.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

/// Narrower than this, captions would break behind every other word.
constexpr std::size_t smallestWidth = 64;
constexpr std::size_t largestWidth = 90;
constexpr std::size_t longestTab = 24;

/// Where the parts of the form lie on a screen.
struct FormPlan {
    std::size_t left = 0;
    std::size_t top = 0;
    std::size_t width = 0;
    std::size_t listWidth = 0;   ///< of the list of pages, with a blank at each side
    std::size_t pageHeight = 0;  ///< of the list and of the tallest page

    std::size_t ListRule() const { return left + 1 + listWidth; }
    std::size_t PageLeft() const { return ListRule() + 3; }
    std::size_t PageWidth() const { return width - listWidth - 6; }
    /// First line of the list and of the page; a line stays empty above and below.
    std::size_t PageTop() const { return top + 2; }
    std::size_t ButtonRule() const { return PageTop() + pageHeight + 1; }
    std::size_t Bottom() const { return ButtonRule() + 2; }
    std::size_t Height() const { return Bottom() - top + 1; }
};

std::vector<const FormControlRow*> RowsOf(const std::vector<FormControlRow>& rows, FormControlKind kind) {
    std::vector<const FormControlRow*> found;
    for (const FormControlRow& row : rows)
        if (row.kind == kind) found.push_back(&row);
    return found;
}

/// The caption of a tab as the list shows it, behind its number.
FormCaption TabCaption(const FormControlRow& row) {
    FormCaption caption = ToFormCaption(row.caption);
    caption.text = CutToWidth(caption.text, longestTab);
    if (caption.accessKey && *caption.accessKey >= caption.text.size()) caption.accessKey.reset();
    return caption;
}

std::u32string ButtonText(const FormControlRow& row) {
    const std::u32string text = ToFormCaption(row.caption).text;
    return row.enabled ? U"[ " + text + U" ]" : U"  " + text + U"  ";
}

std::size_t TallestPage(const std::vector<FormControlRow>& rows, std::size_t width) {
    const ScreenFormState state{.title = {}, .rows = rows, .focus = {}};
    std::size_t tallest = 0;
    for (const FormControlRow* tab : RowsOf(rows, FormControlKind::tab)) {
        ScreenPicture measured;
        tallest = std::max(tallest, DrawFormPage(measured, state, tab->page, {}, width));
    }
    return tallest;
}

FormPlan PlanOf(const std::vector<FormControlRow>& rows, ScreenSize size) {
    FormPlan plan;
    plan.width = std::min(size.width, largestWidth);
    plan.left = (size.width - plan.width) / 2;
    const std::vector<const FormControlRow*> tabs = RowsOf(rows, FormControlKind::tab);
    for (const FormControlRow* tab : tabs)
        plan.listWidth = std::max(plan.listWidth, CellsOf(TabCaption(*tab).text) + 4);
    plan.pageHeight = std::max(tabs.size(), TallestPage(rows, plan.PageWidth()));
    const std::size_t spare = size.height - std::min(size.height, plan.Height() + 1);
    plan.top = spare / 2;
    return plan;
}

/// A line across the form with its ends, and where the rule beside the list meets it.
std::u32string Across(const FormPlan& plan, std::u32string_view ends, char32_t meeting) {
    std::u32string line(plan.width, U'─');
    line.front() = ends.front();
    line.back() = ends.back();
    line[plan.ListRule() - plan.left] = meeting;
    return line;
}

void DrawBox(ScreenPicture& picture, const FormPlan& plan, const std::string& title) {
    picture.Put({plan.top, plan.left}, Across(plan, U"┌┐", U'┬'), ScreenStyle::frame);
    for (std::size_t row = plan.top + 1; row < plan.Bottom(); ++row) {
        picture.Put({row, plan.left}, U"│", ScreenStyle::frame);
        picture.Put({row, plan.left + plan.width - 1}, U"│", ScreenStyle::frame);
        if (row < plan.ButtonRule()) picture.Put({row, plan.ListRule()}, U"│", ScreenStyle::frame);
    }
    picture.Put({plan.ButtonRule(), plan.left}, Across(plan, U"├┤", U'┴'), ScreenStyle::frame);
    picture.Put({plan.Bottom(), plan.left}, Across(plan, U"└┘", U'─'), ScreenStyle::frame);
    const std::u32string text = ToFormCaption(title).text;
    picture.Put({plan.top, plan.left + 2}, U' ' + std::u32string(CutToWidth(text, plan.width - 6)) + U' ',
                ScreenStyle::title);
}

void DrawTabs(ScreenPicture& picture, const FormPlan& plan, const ScreenFormState& state) {
    ScreenPoint at{plan.PageTop(), plan.left + 1};
    for (const FormControlRow* tab : RowsOf(state.rows, FormControlKind::tab)) {
        const bool shown = tab->page == state.page;
        const bool focused = shown && tab->name == state.focus;
        const ScreenStyle style = focused ? ScreenStyle::focus
                                  : shown ? ScreenStyle::strong
                                          : ScreenStyle::plain;
        if (focused) {
            picture.Put(at, std::u32string(plan.listWidth, U' '), style);
            picture.cursor = {at.row, at.column + 1};
        }
        // The rule opens towards the page that is shown.
        if (shown) picture.Put({at.row, plan.ListRule()}, U" ", ScreenStyle::plain);
        picture.Put({at.row, at.column + 1}, ToCharacters(std::to_string(tab->page + 1)), style);
        PutCaption(picture, {at.row, at.column + 3}, TabCaption(*tab), style);
        ++at.row;
    }
}

void DrawButton(ScreenPicture& picture, ScreenPoint at, const FormControlRow& row,
                const ScreenFormState& state) {
    const bool focused = row.name == state.focus;
    ScreenStyle style = row.name == FormButton::ok ? ScreenStyle::strong : ScreenStyle::plain;
    if (focused) style = ScreenStyle::focus;
    if (!row.enabled) style = ScreenStyle::disabled;
    if (focused) picture.cursor = {at.row, at.column + 2};
    picture.Put(at, ButtonText(row), style);
    PutCaption(picture, {at.row, at.column + 2}, ToFormCaption(row.caption), style);
}

/// The first button is at the left end, the others at the right.
void DrawButtons(ScreenPicture& picture, const FormPlan& plan, const ScreenFormState& state) {
    const std::vector<const FormControlRow*> buttons = RowsOf(state.rows, FormControlKind::button);
    ScreenPoint at{plan.ButtonRule() + 1, plan.left + plan.width - 2};
    for (std::size_t i = buttons.size(); i > 1; --i) {
        at.column -= CellsOf(ButtonText(*buttons[i - 1]));
        DrawButton(picture, at, *buttons[i - 1], state);
        at.column -= 2;
    }
    if (!buttons.empty()) DrawButton(picture, {at.row, plan.left + 2}, *buttons.front(), state);
}

struct KeyHint {
    std::u32string keys;
    std::u32string_view meaning;

    std::size_t Width() const { return CellsOf(keys) + 1 + CellsOf(meaning) + 2; }
};

/// What finds no room is left out from the front.
void DrawKeys(ScreenPicture& picture, std::size_t row, std::size_t left, std::size_t width,
              std::size_t pages) {
    const std::u32string lastPage = ToCharacters(std::to_string(pages));
    const std::array<KeyHint, 7> hints{{{U"Alt+letter", U"choose"},
                                        {U"Tab", U"move"},
                                        {U"PgUp/PgDn 1-" + lastPage, U"page"},
                                        {U"Space", U"change"},
                                        {U"F1/?", U"help"},
                                        {U"Enter", U"OK"},
                                        {U"Esc", U"cancel"}}};
    std::size_t total = 0;
    for (const KeyHint& hint : hints) total += hint.Width();
    ScreenPoint at{row, left};
    for (const KeyHint& hint : hints) {
        if (total > width) {
            total -= hint.Width();
            continue;
        }
        picture.Put(at, hint.keys, ScreenStyle::strong);
        picture.Put({row, at.column + CellsOf(hint.keys) + 1}, hint.meaning, ScreenStyle::hint);
        at.column += hint.Width();
    }
}

}  // namespace

bool ScreenFormFits(const std::vector<FormControlRow>& rows, ScreenSize size) {
    return size.width >= smallestWidth && PlanOf(rows, size).Height() + 1 <= size.height;
}

ScreenPicture DrawScreenForm(const ScreenFormState& state, ScreenSize size) {
    ScreenPicture picture;
    const FormPlan plan = PlanOf(state.rows, size);
    DrawBox(picture, plan, state.title);
    DrawTabs(picture, plan, state);
    DrawFormPage(picture, state, state.page, {plan.PageTop(), plan.PageLeft()}, plan.PageWidth());
    DrawButtons(picture, plan, state);
    DrawKeys(picture, size.height - 1, plan.left + 2, size.width - plan.left - 2,
             RowsOf(state.rows, FormControlKind::tab).size());
    return picture;
}

ScreenPicture DrawTooSmall(ScreenSize size) {
    constexpr std::u32string_view text =
        U"The form needs more room. Please enlarge the window. Enter goes on line by line, Esc cancels.";
    ScreenPicture picture;
    std::size_t row = 0;
    for (const TextPart& part : WrapText(text, size.width))
        picture.Put({row++, 0}, text.substr(part.start, part.length), ScreenStyle::plain);
    return picture;
}

}  // namespace wxbrg
