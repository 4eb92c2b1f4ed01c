#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/ProfileStore.h"

namespace wxbrg {

/// Types of stored values.
enum class ProfileType : std::int32_t { text = 1, number = 4 };

/// A stored value: the user's, else the machine's, else nothing. An empty text of the user counts as found.
ProfileValue GetProfileValue(std::string_view Key, std::string_view ValueName);

/// A stored value as a text: a number in decimal, and the empty text for no value.
std::string TextOf(const ProfileValue& value);

/// Stores a value of the user. Failing to is silent; so is a value that is not of `Type`.
void SetProfileValue(std::string_view Key, std::string_view ValueName, const ProfileValue& Value,
                     ProfileType Type);

/// What `GetProfileValue` answers, for a store that is not the run's.
ProfileValue GetProfileValue(const ProfileStore& store, std::string_view Key, std::string_view ValueName);

}  // namespace wxbrg
