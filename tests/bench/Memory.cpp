#include "tests/bench/Memory.h"

#include <malloc.h>

#include <fstream>
#include <string>

namespace wxbrg::bench {

std::uint64_t HeapBytes() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

std::uint64_t PeakBytes() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        std::uint64_t kilobytes = 0;
        if (word == "VmHWM:" && status >> kilobytes) return kilobytes << 10U;
    }
    return 0;
}

void ForgetPeak() {
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5";
}

}  // namespace wxbrg::bench
