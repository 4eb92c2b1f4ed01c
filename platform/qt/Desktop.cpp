// What the desktop module exports.

#include "platform/DesktopAbi.h"
#include "platform/qt/QtFileDialog.h"
#include "platform/qt/QtHelpViewer.h"
#include "platform/qt/QtMessageBox.h"
#include "platform/qt/QtOptionsFormView.h"
#include "platform/qt/Session.h"

extern "C" {

[[gnu::visibility("default")]] int wxbrg_desktop_version() {
    return wxbrg::DesktopAbi::version;
}

[[gnu::visibility("default")]] void wxbrg_desktop_probe() {
    wxbrg::ProbeDisplay();
}

[[gnu::visibility("default")]] void wxbrg_desktop_make(const wxbrg::DesktopSettings& settings,
                                                       wxbrg::Dialogs& dialogs) {
    dialogs = {std::make_unique<wxbrg::QtMessageBox>(settings.language),
               std::make_unique<wxbrg::QtFileDialog>(settings.language),
               std::make_unique<wxbrg::QtOptionsFormView>(settings.language),
               std::make_unique<wxbrg::QtHelpViewer>(settings.language, settings.helpDirectory)};
}

}  // extern "C"

static_assert(std::is_same_v<decltype(wxbrg_desktop_version), wxbrg::DesktopAbi::VersionFunction>);
static_assert(std::is_same_v<decltype(wxbrg_desktop_probe), wxbrg::DesktopAbi::ProbeFunction>);
static_assert(std::is_same_v<decltype(wxbrg_desktop_make), wxbrg::DesktopAbi::MakeFunction>);
