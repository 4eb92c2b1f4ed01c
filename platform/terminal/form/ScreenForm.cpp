#include "platform/terminal/form/ScreenForm.h"

#include <algorithm>
#include <utility>

#include "platform/terminal/lines/FormCaption.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr char32_t backspaceCharacter = 8;

bool CanHaveFocus(const FormControlRow& row) {
    const bool silent = row.kind == FormControlKind::label || row.kind == FormControlKind::frame;
    return row.enabled && !silent;
}

bool IsOnPage(const FormControlRow& row, std::int32_t page) {
    return row.kind != FormControlKind::tab && row.page == page;
}

FormAct ActOfButton(std::string_view name) {
    if (name == FormButton::help) return FormAct::help;
    if (name == FormButton::ok) return FormAct::ok;
    if (name == FormButton::cancel) return FormAct::cancel;
    return name == FormButton::apply ? FormAct::apply : FormAct::none;
}

}  // namespace

ScreenForm::ScreenForm(OptionsFormEvents& form) : form_(form) {
    Refresh();
    const std::vector<const FormControlRow*> stops = Stops();
    if (!stops.empty()) Focus(*stops.front());
}

const ScreenFormState& ScreenForm::State() {
    Refresh();
    return state_;
}

void ScreenForm::Refresh() {
    state_.title = form_.Caption();
    state_.rows = form_.Rows();
    const FormControlRow* focused = Focused();
    if (focused == nullptr) return;
    if (!focused->enabled) MoveFocus(1);
    if (focused->kind == FormControlKind::textField)
        state_.cursor = std::min(state_.cursor, CharacterCount(focused->text));
}

const FormControlRow* ScreenForm::Focused() const {
    for (const FormControlRow& row : state_.rows)
        if (row.name == state_.focus && (row.kind != FormControlKind::tab || row.page == state_.page))
            return &row;
    return nullptr;
}

bool ScreenForm::IsFocused(FormControlKind kind) const {
    const FormControlRow* focused = Focused();
    return focused != nullptr && focused->kind == kind;
}

std::vector<const FormControlRow*> ScreenForm::Stops() const {
    std::vector<const FormControlRow*> stops;
    for (const FormControlRow& row : state_.rows) {
        if (!CanHaveFocus(row)) continue;
        if (row.page == state_.page || row.kind == FormControlKind::button) stops.push_back(&row);
    }
    return stops;
}

void ScreenForm::Focus(const FormControlRow& row) {
    state_.focus = row.name;
    if (row.kind == FormControlKind::textField) state_.cursor = CharacterCount(row.text);
}

void ScreenForm::MoveFocus(std::ptrdiff_t step) {
    const std::vector<const FormControlRow*> stops = Stops();
    if (stops.empty()) return;
    // A control that has just been disabled is no stop, but still says where to go on.
    const FormControlRow* focused = Focused();
    const auto at = std::lower_bound(stops.begin(), stops.end(), focused);
    const bool isStop = at != stops.end() && *at == focused;
    const auto count = static_cast<std::ptrdiff_t>(stops.size());
    const std::ptrdiff_t next = (at - stops.begin()) + (step > 0 && !isStop ? 0 : step);
    Focus(*stops[static_cast<std::size_t>((next + count) % count)]);
}

void ScreenForm::ShowPage(std::int32_t page) {
    const bool wasOnPage = Focused() != nullptr && IsOnPage(*Focused(), state_.page);
    state_.page = page;
    if (!wasOnPage) return;
    for (const FormControlRow& row : state_.rows)
        if (CanHaveFocus(row) && IsOnPage(row, page)) return Focus(row);
}

void ScreenForm::TurnPage(std::ptrdiff_t step) {
    const auto pages = static_cast<std::int32_t>(
        std::count_if(state_.rows.begin(), state_.rows.end(), [](const FormControlRow& row) {
            return row.kind == FormControlKind::tab;
        }));
    if (pages > 0) ShowPage((state_.page + static_cast<std::int32_t>(step) + pages) % pages);
}

FormAct ScreenForm::Press(const ScreenKey& key) {
    Refresh();
    switch (key.kind) {
        case KeyKind::character:
            return IsFocused(FormControlKind::textField) ? Insert(key.character)
                                                         : PressCharacter(key.character);
        case KeyKind::access:
            return PressAccessKey(key.character);
        case KeyKind::enter:
            return PressEnter();
        case KeyKind::escape:
        case KeyKind::endOfInput:
            return FormAct::cancel;
        case KeyKind::help:
            return PressHelp();
        case KeyKind::left:
        case KeyKind::right:
        case KeyKind::up:
        case KeyKind::down:
            return PressArrow(key.kind);
        case KeyKind::home:
        case KeyKind::end:
        case KeyKind::backspace:
        case KeyKind::erase:
            return EditField(key);
        default:
            Move(key.kind);
            return FormAct::none;
    }
}

void ScreenForm::Move(KeyKind key) {
    if (key == KeyKind::tab) MoveFocus(1);
    if (key == KeyKind::backTab) MoveFocus(-1);
    if (key == KeyKind::previousPage) TurnPage(-1);
    if (key == KeyKind::nextPage) TurnPage(1);
}

FormAct ScreenForm::PressArrow(KeyKind arrow) {
    if (IsFocused(FormControlKind::tab)) return PressArrowOnTabs(arrow);
    if (IsFocused(FormControlKind::button)) return PressArrowOnButton(arrow);
    return PressArrowInPage(arrow);
}

FormAct ScreenForm::PressArrowOnTabs(KeyKind arrow) {
    if (arrow == KeyKind::up) TurnPage(-1);
    if (arrow == KeyKind::down) TurnPage(1);
    if (arrow == KeyKind::right) MoveFocus(1);
    return FormAct::none;
}

FormAct ScreenForm::PressArrowOnButton(KeyKind arrow) {
    const std::vector<const FormControlRow*> stops = Stops();
    const auto first = std::find_if(stops.begin(), stops.end(), [](const FormControlRow* row) {
        return row->kind == FormControlKind::button;
    });
    if (arrow == KeyKind::left && *first != Focused()) MoveFocus(-1);
    if (arrow == KeyKind::right && stops.back() != Focused()) MoveFocus(1);
    if (arrow == KeyKind::up && first != stops.begin()) Focus(**(first - 1));
    return FormAct::none;
}

FormAct ScreenForm::PressArrowInPage(KeyKind arrow) {
    if (IsFocused(FormControlKind::textField) && (arrow == KeyKind::left || arrow == KeyKind::right))
        return EditField({arrow});
    if (arrow == KeyKind::up) MoveFocus(-1);
    if (arrow == KeyKind::down) MoveFocus(1);
    if (arrow == KeyKind::left) Focus(*Stops().front());
    return FormAct::none;
}

FormAct ScreenForm::PressCharacter(char32_t character) {
    if (character == U'?') return PressHelp();
    if (character == U' ' && Focused() != nullptr) return Use(*Focused());
    return PressAccessKey(character);
}

FormAct ScreenForm::PressAccessKey(char32_t character) {
    const char32_t wanted = UpperCaseKey(character);
    for (const FormControlRow& row : state_.rows) {
        const bool shown = row.page == state_.page || row.page == noPage || row.kind == FormControlKind::tab;
        if (shown && row.enabled && ToFormCaption(row.caption).Key() == wanted) return Choose(row);
        const bool isTab = row.kind == FormControlKind::tab;
        if (isTab && U'1' + static_cast<char32_t>(row.page) == wanted) return Choose(row);
    }
    return FormAct::beep;
}

FormAct ScreenForm::Choose(const FormControlRow& row) {
    if (row.kind == FormControlKind::tab) {
        ShowPage(row.page);
        Focus(row);
        return FormAct::none;
    }
    if (row.kind == FormControlKind::button) return ActOfButton(row.name);
    if (CanHaveFocus(row)) {
        Focus(row);
        return row.kind == FormControlKind::textField ? FormAct::none : Use(row);
    }
    // The key of a label or a frame leads to the control behind it.
    const FormControlRow* const end = state_.rows.data() + state_.rows.size();
    const FormControlRow* const next = std::find_if(&row, end, CanHaveFocus);
    if (next == end) return FormAct::beep;
    Focus(*next);
    return FormAct::none;
}

FormAct ScreenForm::Use(const FormControlRow& row) {
    switch (row.kind) {
        case FormControlKind::checkBox:
        case FormControlKind::optionButton:
            return form_.Click(row.name) ? FormAct::none : FormAct::beep;
        case FormControlKind::button:
            return ActOfButton(row.name);
        default:
            return FormAct::beep;
    }
}

FormAct ScreenForm::PressEnter() const {
    return IsFocused(FormControlKind::button) ? ActOfButton(Focused()->name) : FormAct::ok;
}

FormAct ScreenForm::PressHelp() const {
    const FormControlRow* focused = Focused();
    return focused != nullptr && focused->helpNumber != 0 ? FormAct::helpOnFocus : FormAct::beep;
}

FormAct ScreenForm::EditField(const ScreenKey& key) {
    if (!IsFocused(FormControlKind::textField)) return FormAct::none;
    if (key.kind == KeyKind::erase) return Erase(state_.cursor);
    if (key.kind != KeyKind::backspace) {
        MoveCursor(key.kind);
        return FormAct::none;
    }
    if (!form_.KeepsKey(backspaceCharacter)) return FormAct::beep;
    if (state_.cursor == 0) return FormAct::none;
    return Erase(--state_.cursor);
}

void ScreenForm::MoveCursor(KeyKind key) {
    const std::size_t end = CharacterCount(Focused()->text);
    if (key == KeyKind::home) state_.cursor = 0;
    if (key == KeyKind::end) state_.cursor = end;
    if (key == KeyKind::left && state_.cursor > 0) --state_.cursor;
    if (key == KeyKind::right && state_.cursor < end) ++state_.cursor;
}

FormAct ScreenForm::Insert(char32_t character) {
    const FormControlRow& field = *Focused();
    std::u32string text = ToCharacters(field.text);
    const bool full = field.maximumLength > 0 && text.size() >= field.maximumLength;
    if (!form_.KeepsKey(character) || full) return FormAct::beep;
    text.insert(state_.cursor++, 1, character);
    form_.Change(FromCharacters(text));
    return FormAct::none;
}

FormAct ScreenForm::Erase(std::size_t position) {
    std::u32string text = ToCharacters(Focused()->text);
    if (position >= text.size()) return FormAct::none;
    text.erase(position, 1);
    form_.Change(FromCharacters(text));
    return FormAct::none;
}

}  // namespace wxbrg
