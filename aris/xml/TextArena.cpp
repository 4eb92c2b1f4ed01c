#include "aris/xml/TextArena.h"

#include <algorithm>

#include "support/Numbers.h"

namespace wxbrg::xml {

namespace {

// A small repository is not to pay for a large block.
constexpr std::size_t smallestBlock = std::size_t{4} << 10U;
constexpr std::size_t largestBlock = std::size_t{1} << 20U;

}  // namespace

Text TextArena::Add(std::string_view text) {
    const auto length = NarrowTo<std::uint32_t>(text.size());
    char* const at = Take(sizeof length + text.size());
    std::memcpy(at, &length, sizeof length);
    std::copy(text.begin(), text.end(), at + sizeof length);
    return Text(at);
}

char* TextArena::Take(std::size_t size) {
    if (size > left_) {
        if (size > largestBlock / 4) {
            blocks_.emplace_back(new char[size]);
            return blocks_.back().get();
        }
        blockSize_ = std::clamp(2 * blockSize_, std::max(size, smallestBlock), largestBlock);
        blocks_.emplace_back(new char[blockSize_]);
        free_ = blocks_.back().get();
        left_ = blockSize_;
    }
    char* const taken = free_;
    free_ += size;
    left_ -= size;
    return taken;
}

}  // namespace wxbrg::xml
