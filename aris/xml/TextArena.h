#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace wxbrg::xml {

/// A text in an arena, the size of a pointer; it may be none. Valid as long as the arena.
class Text {
  public:
    Text() = default;

    /// The text; empty where there is none.
    std::string_view View() const {
        if (at_ == nullptr) return {};
        std::uint32_t length = 0;
        std::memcpy(&length, at_, sizeof length);
        return {at_ + sizeof length, length};
    }
    /// Whether there is a text, which may be empty.
    explicit operator bool() const { return at_ != nullptr; }

  private:
    friend class TextArena;
    explicit Text(const char* at) : at_(at) {}

    const char* at_ = nullptr;  // the length in 4 bytes, then the text
};

/// Where the texts of a repository lie, one behind the other; they go with it.
class TextArena {
  public:
    /// Throws failure 6 for a text of 4 GiB or more.
    Text Add(std::string_view text);

  private:
    char* Take(std::size_t size);

    std::vector<std::unique_ptr<char[]>> blocks_;
    std::size_t blockSize_ = 0;
    char* free_ = nullptr;
    std::size_t left_ = 0;
};

}  // namespace wxbrg::xml
