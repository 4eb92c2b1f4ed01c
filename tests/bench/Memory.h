#pragma once

#include <cstdint>

namespace wxbrg::bench {

/// Bytes that the program holds on its heap. 0 where the system does not say.
std::uint64_t HeapBytes();

/// The most bytes of memory that the program has had since `ForgetPeak`. 0 where the system does not say.
std::uint64_t PeakBytes();
void ForgetPeak();

}  // namespace wxbrg::bench
