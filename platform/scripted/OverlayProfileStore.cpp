#include "platform/scripted/OverlayProfileStore.h"

namespace wxbrg {

ProfileValue OverlayProfileStore::Read(ProfileScope scope, std::string_view key,
                                       std::string_view name) const {
    if (scope == ProfileScope::machine) return base_.Read(scope, key, name);
    const auto found = written_.find(ProfilePlace(key, name));
    return found == written_.end() ? base_.Read(scope, key, name) : found->second;
}

bool OverlayProfileStore::Write(std::string_view key, std::string_view name, const ProfileValue& value) {
    if (std::holds_alternative<std::monostate>(value)) return false;
    written_[ProfilePlace(key, name)] = value;
    return true;
}

bool OverlayProfileStore::Remove(std::string_view key, std::string_view name) {
    written_[ProfilePlace(key, name)] = std::monostate();
    return true;
}

}  // namespace wxbrg
