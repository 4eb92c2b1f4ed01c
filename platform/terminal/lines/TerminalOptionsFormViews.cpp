#include "platform/terminal/lines/TerminalOptionsFormViews.h"

#include <iostream>

#include "platform/terminal/form/CursesScreen.h"
#include "platform/terminal/form/ScreenOptionsFormView.h"
#include "platform/terminal/lines/TerminalOptionsFormView.h"

namespace wxbrg {

std::unique_ptr<OptionsFormView> MakeTerminalOptionsFormView(std::istream& in, std::ostream& out) {
    if (&in != &std::cin || &out != &std::cout) return std::make_unique<TerminalOptionsFormView>(in, out);
    return std::make_unique<ScreenOptionsFormView>(in, out, OpenCursesScreen);
}

}  // namespace wxbrg
