#pragma once

#include <cstdint>
#include <string>

namespace wxbrg {

/// The run-time's number for a failed call on a file, from the system's `errno` value: 53 the file is not
/// there, 76 a folder on its way is not there or is none, 61 the disk or the quota is full, 75 anything else.
std::int32_t FailureNumberOf(int error, const std::string& name);

}  // namespace wxbrg
