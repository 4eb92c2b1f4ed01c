#include "platform/posix/Iconv.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <stdexcept>

namespace wxbrg {

namespace {

/// Calls iconv with a fixed room for its output until it wants no more of it; `unread` and `left` are moved
/// on. Returns iconv's last error, 0 for none.
int RunToEnd(iconv_t conversion, char** unread, std::size_t* left, std::string& result) {
    std::array<char, 8192> room;
    for (;;) {
        char* end = room.data();
        std::size_t free = room.size();
        const bool failed = iconv(conversion, unread, left, &end, &free) == static_cast<std::size_t>(-1);
        const int error = failed ? errno : 0;
        result.append(room.data(), end);
        if (error != E2BIG) return error;
    }
}

}  // namespace

Iconv::Iconv(const char* to, const char* from) : conversion_(iconv_open(to, from)) {
    // iconv_open marks a failure by this value and by nothing else.
    if (reinterpret_cast<std::intptr_t>(conversion_) == -1)
        throw std::invalid_argument("the system cannot convert text from " + std::string(from) + " to " + to);
}

Iconv::Outcome Iconv::Convert(std::string_view bytes, std::string& result) {
    // iconv takes a pointer to char that is not const, and leaves what it points to alone.
    char* unread = const_cast<char*>(bytes.data());
    std::size_t left = bytes.size();
    const int error = RunToEnd(conversion_, &unread, &left, result);
    return {bytes.size() - left, error == EINVAL};
}

void Iconv::Finish(std::string& result) {
    RunToEnd(conversion_, nullptr, nullptr, result);
}

}  // namespace wxbrg
