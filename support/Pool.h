#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "support/Ref.h"

namespace wxbrg {

/// Owns the workflow objects of one run. They refer to each other freely, in circles too, and live until the
/// pool goes.
class Pool {
  public:
    /// Makes an object that lives as long as the pool.
    template <class T, class... Arguments>
    Ref<T> Create(Arguments&&... arguments) {
        T* object = new T(std::forward<Arguments>(arguments)...);
        objects_.emplace_back(object, [](void* owned) {
            delete static_cast<T*>(owned);
        });
        return object;
    }

  private:
    std::vector<std::unique_ptr<void, void (*)(void*)>> objects_;
};

}  // namespace wxbrg
