#include "platform/RunStack.h"

#include <pthread.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <memory>
#include <system_error>

namespace wxbrg {

namespace {

/// A stack that holds more than this when asked for is never made smaller than this.
constexpr std::size_t smallestStack = std::size_t{8} << 20U;

/// Address space for a stack, with a page at its low end that traps an overflow.
class StackMemory {
  public:
    /// Throws `std::system_error` when the system does not grant that much.
    explicit StackMemory(std::size_t size)
        : size_(size),
          start_(mmap(nullptr, size, PROT_READ | PROT_WRITE,
                      MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_STACK, -1, 0)) {
        if (start_ == MAP_FAILED) throw std::system_error(errno, std::generic_category(), "stack");
        if (mprotect(start_, GuardSize(), PROT_NONE) == 0) return;
        const int error = errno;
        munmap(start_, size_);
        throw std::system_error(error, std::generic_category(), "guard of the stack");
    }
    ~StackMemory() { munmap(start_, size_); }
    StackMemory(const StackMemory&) = delete;
    StackMemory& operator=(const StackMemory&) = delete;

    char* Lowest() const { return static_cast<char*>(start_) + GuardSize(); }
    std::size_t UsableSize() const { return size_ - GuardSize(); }

  private:
    static std::size_t GuardSize() { return static_cast<std::size_t>(sysconf(_SC_PAGESIZE)); }

    std::size_t size_;
    void* start_;
};

struct Work {
    const std::function<void(const char*)>& body;
    const char* end;
    std::exception_ptr failure;
};

void* RunBody(void* argument) {
    Work& work = *static_cast<Work*>(argument);
    try {
        work.body(work.end);
    } catch (...) {
        work.failure = std::current_exception();
    }
    return nullptr;
}

/// Starts a thread on a stack; returns the system's error number, 0 for none.
int StartThread(pthread_t& thread, const StackMemory& stack, Work& work) {
    pthread_attr_t attributes;
    if (const int error = pthread_attr_init(&attributes); error != 0) return error;
    int error = pthread_attr_setstack(&attributes, stack.Lowest(), stack.UsableSize());
    if (error == 0) error = pthread_create(&thread, &attributes, RunBody, &work);
    pthread_attr_destroy(&attributes);
    return error;
}

/// Where address space is limited, the stack is to leave the better part of it to the heap.
std::size_t WithinAddressSpaceLimit(std::size_t size) {
    rlimit limit{};
    if (getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) return size;
    return std::min<std::size_t>(size, limit.rlim_cur / 4);
}

std::size_t WholePages(std::size_t size) {
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return size / page * page;
}

/// The largest stack that the system grants, from `size` downward by halves. Throws `std::system_error` when
/// it does not even grant the smallest that will do.
std::unique_ptr<StackMemory> ReserveStack(std::size_t size) {
    const std::size_t floor = std::min(WholePages(size), smallestStack);
    size = std::max(WholePages(WithinAddressSpaceLimit(size)), floor);
    for (;; size = std::max(WholePages(size / 2), floor)) {
        try {
            return std::make_unique<StackMemory>(size);
        } catch (const std::system_error&) {
            if (size == floor) throw;
        }
    }
}

}  // namespace

void OnReservedStack(std::size_t size, const std::function<void(const char* end)>& body) {
    const std::unique_ptr<StackMemory> stack = ReserveStack(size);
    Work work{body, stack->Lowest(), nullptr};
    pthread_t thread{};
    if (const int error = StartThread(thread, *stack, work); error != 0)
        throw std::system_error(error, std::generic_category(), "thread of the run");
    pthread_join(thread, nullptr);
    if (work.failure) std::rethrow_exception(work.failure);
}

}  // namespace wxbrg
