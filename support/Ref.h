#pragma once

#include <cstddef>
#include <type_traits>

#include "support/Failure.h"

namespace wxbrg {

/// A shared reference that may be empty. It owns nothing: what it refers to belongs to a repository or to
/// the pool of the run and outlives every reference. Going through an empty reference is failure 91.
template <class T>
class Ref {
  public:
    constexpr Ref() = default;
    constexpr Ref(std::nullptr_t) {}
    constexpr Ref(T* target) : target_(target) {}
    /// A reference to a derived class, or to what may be changed, serves as one to its base.
    template <class Other>
    requires std::is_convertible_v<Other*, T*>
    constexpr Ref(Ref<Other> other) : target_(other.Get()) {}

    /// Throws failure 91 when the reference is empty.
    T* operator->() const {
        if (target_ == nullptr) throw Failure(FailureKind::objectNotSet);
        return target_;
    }
    /// Throws failure 91 when the reference is empty.
    T& operator*() const { return *operator->(); }

    constexpr explicit operator bool() const { return target_ != nullptr; }
    /// The target, or null.
    constexpr T* Get() const { return target_; }

    friend constexpr bool operator==(Ref, Ref) = default;

  private:
    T* target_ = nullptr;
};

}  // namespace wxbrg
