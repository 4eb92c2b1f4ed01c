#include "platform/posix/DlDesktop.h"

#include <dlfcn.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <utility>

#include "platform/Path.h"
#include "platform/posix/ChildProcess.h"

namespace wxbrg {

namespace {

constexpr std::chrono::seconds longestProbe{20};
constexpr const char* moduleName = "wxbrg_desktop.so";

/// The functions of a module. None where the module is not there or not of this program.
struct Module {
    DesktopAbi::ProbeFunction* probe = nullptr;
    DesktopAbi::MakeFunction* make = nullptr;
};

template <class Function>
Function* FindFunction(void* library, const char* name) {
    return reinterpret_cast<Function*>(dlsym(library, name));
}

std::variant<Module, NoDesktop> Load(const std::string& path) {
    void* const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (library == nullptr)
        return NoDesktop{std::string("The desktop module cannot be loaded: ") + dlerror()};
    using namespace DesktopAbi;
    auto* const versionOf = FindFunction<VersionFunction>(library, versionFunctionName);
    const Module found{FindFunction<ProbeFunction>(library, probeFunctionName),
                       FindFunction<MakeFunction>(library, makeFunctionName)};
    if (versionOf == nullptr || versionOf() != version || found.probe == nullptr || found.make == nullptr)
        return NoDesktop{path + " does not belong to this program"};
    return found;
}

}  // namespace

bool HasDisplay() {
    constexpr std::array variables{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return std::any_of(variables.begin(), variables.end(), [](const char* variable) {
        const char* const value = std::getenv(variable);
        return value != nullptr && *value != '\0';
    });
}

std::variant<Dialogs, NoDesktop> OpenDesktop(const std::string& directory, const DesktopSettings& settings) {
    if (!HasDisplay()) return NoDesktop{"There is no display"};
    std::variant<Module, NoDesktop> loaded = Load(FileInFolder(directory, moduleName));
    if (auto* const none = std::get_if<NoDesktop>(&loaded)) return std::move(*none);
    const auto& module = std::get<Module>(loaded);
    if (const std::optional<std::string> failure = FailureInChild(module.probe, longestProbe))
        return NoDesktop{"The display cannot be opened: " + *failure};
    Dialogs dialogs;
    module.make(settings, dialogs);
    dialogs.inWindows = true;
    return dialogs;
}

}  // namespace wxbrg
