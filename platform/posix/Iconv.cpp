#include "platform/posix/Iconv.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <stdexcept>
#include <system_error>

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

/// What kept iconv_open from opening a conversion. The system's conversions are files that are loaded on
/// demand; where one cannot be, glibc reports EINVAL as if the character set were unknown. So the two things
/// that such a file needs are tried: a descriptor and address space.
int CauseOfFailedOpen(int error) {
    if (error != EINVAL) return error;
    const int descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) return errno == EMFILE || errno == ENFILE ? errno : error;
    close(descriptor);
    constexpr std::size_t needed = std::size_t{1} << 20U;
    void* const room = mmap(nullptr, needed, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (room == MAP_FAILED) return errno;
    munmap(room, needed);
    return error;
}

[[noreturn]] void FailToOpen(int error, const std::string& to, const std::string& from) {
    const std::string conversion = "text from " + from + " to " + to;
    if (error == EINVAL) throw std::invalid_argument("the system cannot convert " + conversion);
    throw std::system_error(error, std::generic_category(), "converting " + conversion);
}

}  // namespace

Iconv::Iconv(const char* to, const char* from) : conversion_(iconv_open(to, from)) {
    // iconv_open marks a failure by this value and by nothing else.
    if (reinterpret_cast<std::intptr_t>(conversion_) == -1) FailToOpen(CauseOfFailedOpen(errno), to, from);
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
