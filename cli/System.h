#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cli/ToolEnvironment.h"

namespace wxbrg::cli {

/// The operating system as a program needs it. Each system's folder (platform/posix/ and so on) implements
/// this header; it is the only place that names the classes of the system and of the repository providers.
class System {
  public:
    virtual ~System() = default;

    /// What the program was called with, without its name, in UTF-8. Takes the parameters of main.
    virtual std::vector<std::string> Arguments(int argc, char** argv) const = 0;

    /// What the tool runs on; valid as long as this is.
    virtual const ToolEnvironment& Environment() const = 0;
};

/// The system that the program was built for. From here on, signals are dealt with as that system's folder
/// says. Throws a std::exception, with a text for the user, where the system lacks what the program needs.
std::unique_ptr<System> OpenSystem();

}  // namespace wxbrg::cli
