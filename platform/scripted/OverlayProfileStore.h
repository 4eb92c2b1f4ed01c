#pragma once

#include <map>

#include "platform/ProfileStore.h"
#include "platform/scripted/ProfilePlace.h"

namespace wxbrg {

/// A store that takes its values from another one, and keeps what is written to itself: the other one never
/// changes.
class OverlayProfileStore : public ProfileStore {
  public:
    /// `base` is to outlive the overlay.
    explicit OverlayProfileStore(const ProfileStore& base) : base_(base) {}

    ProfileValue Read(ProfileScope scope, std::string_view key, std::string_view name) const override;
    bool Write(std::string_view key, std::string_view name, const ProfileValue& value) override;
    bool Remove(std::string_view key, std::string_view name) override;

  private:
    const ProfileStore& base_;
    std::map<ProfilePlace, ProfileValue> written_;  ///< the user's values; empty for one that was taken out
};

}  // namespace wxbrg
