#include "platform/posix/DlLanguageLibraries.h"

#include <dlfcn.h>

#include <utility>

#include "lang/LanguageLibraryAbi.h"
#include "platform/Path.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

/// A shared library that is unloaded when its last user goes.
using SharedLibrary = std::unique_ptr<void, int (*)(void*)>;

class DlLanguageLibrary : public LanguageLibrary {
  public:
    DlLanguageLibrary(SharedLibrary library, LanguageLibraryAbi::MessageFunction* message)
        : library_(std::move(library)), message_(message) {}

    std::string LoadString(std::uint32_t number, std::size_t capacity) const override {
        const char* const text = message_(number);
        if (text == nullptr || capacity == 0) return {};
        return std::string(WithinBytes(text, capacity - 1));
    }

  private:
    SharedLibrary library_;
    LanguageLibraryAbi::MessageFunction* message_;
};

/// A function that a library exports, or null.
template <class Function>
Function* FindFunction(const SharedLibrary& library, const char* name) {
    return reinterpret_cast<Function*>(dlsym(library.get(), name));
}

}  // namespace

DlLanguageLibraries::DlLanguageLibraries(std::string directory) : directory_(std::move(directory)) {}

std::unique_ptr<LanguageLibrary> DlLanguageLibraries::Load(std::string_view fileName) {
    using namespace LanguageLibraryAbi;
    if (fileName.find('/') != std::string_view::npos) return nullptr;
    const std::string path = FileInFolder(directory_, fileName);
    SharedLibrary library(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL), dlclose);
    if (!library) return nullptr;
    auto* const versionOf = FindFunction<VersionFunction>(library, versionFunctionName);
    if (versionOf == nullptr || versionOf() != version) return nullptr;
    auto* const message = FindFunction<MessageFunction>(library, messageFunctionName);
    if (message == nullptr) return nullptr;
    return std::make_unique<DlLanguageLibrary>(std::move(library), message);
}

}  // namespace wxbrg
