#include "platform/scripted/MemoryLanguageLibraries.h"

#include <utility>

#include "support/Text.h"

namespace wxbrg {

namespace {

class MemoryLanguageLibrary : public LanguageLibrary {
  public:
    explicit MemoryLanguageLibrary(MemoryLanguageLibraries::Texts texts) : texts_(std::move(texts)) {}

    std::string LoadString(std::uint32_t number, std::size_t capacity) const override {
        const auto found = texts_.find(number);
        if (found == texts_.end() || capacity == 0) return {};
        return std::string(WithinBytes(found->second, capacity - 1));
    }

  private:
    MemoryLanguageLibraries::Texts texts_;
};

}  // namespace

void MemoryLanguageLibraries::Put(std::string_view fileName, Texts texts) {
    libraries_.insert_or_assign(std::string(fileName), std::move(texts));
}

std::unique_ptr<LanguageLibrary> MemoryLanguageLibraries::Load(std::string_view fileName) {
    const auto found = libraries_.find(fileName);
    if (found == libraries_.end()) return nullptr;
    return std::make_unique<MemoryLanguageLibrary>(found->second);
}

}  // namespace wxbrg
