// A desktop module without a desktop, whose version and whose probe a test chooses.

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "platform/DesktopAbi.h"
#include "platform/scripted/NoHelp.h"

extern "C" {

int wxbrg_desktop_version() {
    return wxbrg::DesktopAbi::version + WXBRG_TEST_VERSION_OFFSET;
}

void wxbrg_desktop_probe() {
    if (!WXBRG_TEST_PROBE_FAILS) return;
    std::fputs("no screen here\nand more of it\n", stderr);
    std::abort();
}

void wxbrg_desktop_make(const wxbrg::DesktopSettings& settings, wxbrg::Dialogs& dialogs) {
    if (settings.language == "DEU") dialogs.helpViewer = std::make_unique<wxbrg::NoHelp>();
}

}  // extern "C"
