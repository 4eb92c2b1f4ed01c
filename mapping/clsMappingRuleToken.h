#pragma once

#include <cstdint>
#include <string>

namespace wxbrg {

/// What a token of a mapping profile is.
namespace TokenType {
inline constexpr std::int32_t keyword = 1;
inline constexpr std::int32_t word = 2;
inline constexpr std::int32_t number = 3;
inline constexpr std::int32_t equals = 6;
}  // namespace TokenType

/// One token of a mapping profile.
class clsMappingRuleToken {
  public:
    std::string TokenValue;  ///< keywords in upper case, all else as it is
    std::int32_t TokenType = 0;
};

}  // namespace wxbrg
