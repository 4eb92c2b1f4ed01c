#pragma once

#include <sys/stat.h>

#include <string>

namespace wxbrg {

/// The process that holds the lock (flock) on a file, in words such as "process 4711"; "another process"
/// where the system does not tell which.
std::string LockHolder(const struct stat& file);

}  // namespace wxbrg
