#pragma once

#include <unistd.h>

#include <cstdlib>

namespace wxbrg {

/// Acts as a user and a group without rights, until it goes; only the superuser can.
class OtherUser {
  public:
    OtherUser() : inForce_(geteuid() == 0 && setegid(nobody) == 0 && seteuid(nobody) == 0) {}
    ~OtherUser() {
        if (!inForce_) return;
        // The user first: another user may not take a group.
        if (seteuid(0) != 0 || setegid(0) != 0) _exit(EXIT_FAILURE);
    }
    OtherUser(const OtherUser&) = delete;
    OtherUser& operator=(const OtherUser&) = delete;

    bool IsInForce() const { return inForce_; }

  private:
    static constexpr unsigned nobody = 65534;
    bool inForce_;
};

}  // namespace wxbrg
