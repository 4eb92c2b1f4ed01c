#pragma once

#include <gmock/gmock.h>

#include "support/Failure.h"

namespace wxbrg {

/// Matches a callable that throws the failure of this number.
inline auto Fails(std::int32_t number) {
    return testing::Throws<Failure>(testing::Field(&Failure::Number, number));
}

}  // namespace wxbrg
