#pragma once

#include <cstddef>
#include <functional>

namespace wxbrg {

/// What the run's stack is asked to hold: address space that is reserved and not committed, for chains of
/// neighbours are as deep as the user's model.
inline constexpr std::size_t runStackSize =
    sizeof(void*) >= 8 ? std::size_t{4} << 30U : std::size_t{256} << 20U;

/// Runs `body` to its end on a stack of its own of `size` bytes, or of what the system grants. An exception
/// that leaves `body` leaves this too. `body` is given the lowest address that it may use; the stack grows
/// down towards it.
void OnReservedStack(std::size_t size, const std::function<void(const char* end)>& body);

}  // namespace wxbrg
