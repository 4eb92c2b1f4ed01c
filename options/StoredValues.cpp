#include "options/StoredValues.h"

#include "run/Frame.h"
#include "run/modGlobals.h"

namespace wxbrg {

ProfileValue GetProfileValue(const ProfileStore& store, std::string_view Key, std::string_view ValueName) {
    ProfileValue value = store.Read(ProfileScope::user, Key, ValueName);
    if (std::holds_alternative<std::monostate>(value))
        value = store.Read(ProfileScope::machine, Key, ValueName);
    return value;
}

ProfileValue GetProfileValue(std::string_view Key, std::string_view ValueName) {
    return Procedure("modUtilities.GetProfileValue", [&](Frame&) {
        return GetProfileValue(gBlock.gPlatform->profileStore, Key, ValueName);
    });
}

std::string TextOf(const ProfileValue& value) {
    if (const auto* number = std::get_if<std::int32_t>(&value)) return std::to_string(*number);
    const auto* text = std::get_if<std::string>(&value);
    return text == nullptr ? std::string() : *text;
}

void SetProfileValue(std::string_view Key, std::string_view ValueName, const ProfileValue& Value,
                     ProfileType Type) {
    Procedure("modUtilities.SetProfileValue", [&](Frame&) {
        const bool text = Type == ProfileType::text && std::holds_alternative<std::string>(Value);
        const bool number = Type == ProfileType::number && std::holds_alternative<std::int32_t>(Value);
        if (text || number) gBlock.gPlatform->profileStore.Write(Key, ValueName, Value);
    });
}

}  // namespace wxbrg
