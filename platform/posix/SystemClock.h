#pragma once

#include "platform/Clock.h"

namespace wxbrg {

/// The system's clock, in its time zone.
class SystemClock : public Clock {
  public:
    LocalTime Now() const override;
};

}  // namespace wxbrg
