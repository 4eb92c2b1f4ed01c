#pragma once

#include <sys/types.h>

#include <string>

namespace wxbrg {

/// An X server without a screen, on a display number of its own, for as long as this object lives. Throws
/// std::runtime_error where it does not start.
class VirtualDisplay {
  public:
    VirtualDisplay();
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

    /// For the variable DISPLAY: ":7".
    const std::string& Name() const { return name_; }

  private:
    pid_t server_;
    std::string name_;
};

}  // namespace wxbrg
