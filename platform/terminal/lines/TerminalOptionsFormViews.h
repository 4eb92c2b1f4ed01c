#pragma once

#include <iosfwd>
#include <memory>

#include "platform/OptionsFormView.h"

namespace wxbrg {

/// The options form for a terminal. On std::cin and std::cout it takes the whole screen where they are a
/// terminal that can be drawn on and has room; over any other streams, and elsewhere, it is questions by the
/// line. The streams outlive it.
std::unique_ptr<OptionsFormView> MakeTerminalOptionsFormView(std::istream& in, std::ostream& out);

}  // namespace wxbrg
