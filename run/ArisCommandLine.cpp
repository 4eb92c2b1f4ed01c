// How clsARIS_Interface takes the ARIS command line apart.

#include <algorithm>

#include "run/ArisSwitches.h"
#include "run/Frame.h"
#include "run/clsARIS_Interface.h"
#include "run/modGlobals.h"
#include "support/Numbers.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

/// A switch's value at or behind `after`, the position behind a found switch; null text where no value
/// follows.
struct SwitchValue {
    bool follows = false;
    std::u32string text;
};

SwitchValue ValueBehind(const std::u32string& raw, std::size_t after, char32_t slash) {
    if (after >= raw.size()) return {};
    const char32_t next = raw[after];
    const bool last = after + 1 == raw.size();
    if (next != U':' && next != U' ' && !(next == U'=' && !last)) return {};
    std::u32string rest = raw.substr(after + 1);
    const std::size_t end = rest.find(slash, 1);
    if (end != std::u32string::npos) rest.resize(end);
    return {true, std::move(rest)};
}

bool IsBlank(const std::u32string& text) {
    return std::all_of(text.begin(), text.end(), [](char32_t character) {
        return character == U' ';
    });
}

}  // namespace

std::string clsARIS_Interface::GetCommandLine(std::string_view Switch) {
    const NamedScope scope("clsARIS_Interface.GetCommandLine");
    const std::u32string raw = ToCharacters(gBlock.gRunRequest->commandLine);
    NarrowTo<std::int16_t>(raw.size());
    const std::u32string upper = ToCharacters(UpperCase(gBlock.gRunRequest->commandLine));
    const std::u32string wanted = ToCharacters(Switch);
    std::u32string value;
    for (std::size_t found = upper.find(wanted); found != std::u32string::npos;
         found = upper.find(wanted, found + 1)) {
        SwitchValue behind = ValueBehind(raw, found + wanted.size(), wanted.front());
        if (behind.follows) value = std::move(behind.text);
        if (!IsBlank(value)) break;
    }
    scope.End();
    return FromCharacters(value);
}

void clsARIS_Interface::SaveCommandlineArguments() {
    Procedure("clsARIS_Interface.SaveCommandlineArguments", [&](Frame&) {
        if (gBlock.gRunRequest->selection) {
            const ExportSelection& selection = *gBlock.gRunRequest->selection;
            sUser = selection.user;
            sDatabase = selection.database;
            sServer = selection.server;
            sRegistry = selection.registry;
            gBlock.gLocale = selection.locale;
            return;
        }
        const auto value = [](std::string_view name) {
            return std::string(Trim(GetCommandLine(name)));
        };
        sUser = value(ArisSwitch::user);
        sDatabase = value(ArisSwitch::database);
        sServer = value(ArisSwitch::server);
        sRegistry = value(ArisSwitch::registry);
        sSelection = value(ArisSwitch::selection);
        gBlock.gLocale = ToInt16(value(ArisSwitch::locale), DecimalSeparator());
    });
}

}  // namespace wxbrg
