#pragma once

#include "platform/Clock.h"

namespace wxbrg {

/// A clock that does not move.
class FixedClock : public Clock {
  public:
    explicit FixedClock(LocalTime time) : time_(time) {}
    LocalTime Now() const override { return time_; }

  private:
    LocalTime time_;
};

}  // namespace wxbrg
