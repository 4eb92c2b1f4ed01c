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
        auto object = std::make_unique<T>(std::forward<Arguments>(arguments)...);
        objects_.push_back(Owned(nullptr, [](void* owned) {
            delete static_cast<T*>(owned);
        }));
        objects_.back().reset(object.get());
        return object.release();
    }

  private:
    using Owned = std::unique_ptr<void, void (*)(void*)>;

    std::vector<Owned> objects_;
};

}  // namespace wxbrg
