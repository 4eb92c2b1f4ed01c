#pragma once

#include <cstdint>
#include <string>

#include "support/Failure.h"

namespace wxbrg {

/// The run-time's number for a failed call on a file, from the system's `errno` value: 53 the file is not
/// there, 76 a folder on its way is not there or is none, 61 the disk or the quota is full, 75 anything else.
std::int32_t FailureNumberOf(int error, const std::string& name);

/// The failure of a call on a file, with the system's error as its cause. The caller has kept `errno` before
/// anything else was done: what allocates may set it anew.
Failure FileFailure(int error, const std::string& name);

}  // namespace wxbrg
