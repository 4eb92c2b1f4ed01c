#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/OptionsFormView.h"
#include "support/Text.h"

namespace wxbrg {

/// A form of two pages with each kind of control, which notes what is asked of it. Its text field takes
/// digits.
class FakeOptionsForm : public OptionsFormEvents {
  public:
    void Activate() override { events.emplace_back("activate"); }
    std::string Caption() const override { return "Test options"; }
    FormFont Font() const override { return {}; }

    std::vector<FormControlRow> Rows() const override {
        using enum FormControlKind;
        return {
            {.name = "tabs", .kind = tab, .page = 0, .caption = "&First page", .helpNumber = 10},
            {.name = "tabs", .kind = tab, .page = 1, .caption = "&Second page", .helpNumber = 10},
            {.name = "cbOne",
             .kind = checkBox,
             .page = 0,
             .caption = "Check &one",
             .helpNumber = 11,
             .checked = boxChecked},
            {.name = "stNumber", .kind = label, .page = 0, .caption = "&Number of things"},
            {.name = "efNumber",
             .kind = textField,
             .page = 0,
             .helpNumber = 12,
             .maximumLength = 4,
             .text = text},
            {.name = "frChoice", .kind = frame, .page = 1, .caption = "&Take from"},
            {.name = "rbNo",
             .kind = optionButton,
             .page = 1,
             .frame = "frChoice",
             .caption = "The &left",
             .helpNumber = 13,
             .checked = !buttonChecked},
            {.name = "rbYes",
             .kind = optionButton,
             .page = 1,
             .frame = "frChoice",
             .caption = "The right",
             .helpNumber = 14,
             .checked = buttonChecked},
            {.name = "cmdHelp", .kind = button, .caption = "&Help", .helpNumber = 15},
            {.name = "cmdOK", .kind = button, .caption = "OK", .helpNumber = 16},
            {.name = "cmdCancel", .kind = button, .caption = "Cancel"},
            {.name = "cmdApply", .kind = button, .caption = "&Apply", .helpNumber = 18, .enabled = dirty}};
    }

    bool IsDirty() const override { return dirty; }
    bool Click(std::string_view control) override {
        events.push_back("click " + std::string(control));
        if (control == "cbOne") boxChecked = !boxChecked;
        if (control.starts_with("rb")) buttonChecked = control == "rbYes";
        dirty = true;
        return true;
    }
    bool KeepsKey(char32_t key) const override { return key == 8 || (key >= U'0' && key <= U'9'); }
    bool Type(char32_t key) override {
        if (!KeepsKey(key)) return false;
        if (key != 8) {
            Change(text + static_cast<char>(key));
        } else if (!text.empty()) {
            Change(text.substr(0, text.size() - 1));
        }
        return true;
    }
    void Change(std::string_view changed) override {
        text = std::string(Left(changed, 4));
        dirty = true;
    }
    void Apply() override {
        events.emplace_back("apply");
        dirty = false;
    }
    void Ok() override {
        events.emplace_back("ok");
        closed = true;
    }
    void Cancel() override {
        events.emplace_back("cancel");
        closed = closedByCancel;
    }
    void Help() override { events.emplace_back("help"); }
    void HelpOn(std::string_view control) override { events.push_back("help on " + std::string(control)); }
    void Close() override { events.emplace_back("close"); }
    bool IsClosed() const override { return closed; }
    std::string TakeStoreProblem() override { return std::exchange(storeProblem, {}); }

    std::string storeProblem;
    bool boxChecked = false;
    bool buttonChecked = false;
    std::string text = "0";
    bool dirty = false;
    bool closed = false;
    bool closedByCancel = false;
    std::vector<std::string> events;
};

}  // namespace wxbrg
