#include "platform/posix/LockHolder.h"

#include <sys/sysmacros.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <sstream>

namespace wxbrg {

namespace {

/// A file as /proc/locks names it: device and inode.
std::string NameInLockTable(const struct stat& file) {
    std::array<char, 64> name{};
    std::snprintf(name.data(), name.size(), "%02x:%02x:%ju", major(file.st_dev), minor(file.st_dev),
                  static_cast<std::uintmax_t>(file.st_ino));
    return name.data();
}

}  // namespace

std::string LockHolder(const struct stat& file) {
    const std::string wanted = NameInLockTable(file);
    std::ifstream table("/proc/locks");
    for (std::string line; std::getline(table, line);) {
        std::istringstream fields(line);
        std::string number, kind, mode, access, locked;
        long process = 0;
        // A process that is not to be seen from here has the number 0 or -1.
        if (fields >> number >> kind >> mode >> access >> process >> locked && kind == "FLOCK" &&
            locked == wanted && process > 0)
            return "process " + std::to_string(process);
    }
    return "another process";
}

}  // namespace wxbrg
