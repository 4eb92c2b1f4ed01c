#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <string_view>

namespace wxbrg {

/// Writes all bytes to an open file, however many calls and interruptions that takes. Returns 0, or the
/// system's error number.
int WriteAll(int descriptor, std::string_view bytes);

/// What an open file has taken over from an earlier one.
struct KeptRights {
    bool owner = false;
    bool group = false;
    bool accessList = false;
    int error = 0;  ///< the system's error number where not even the permissions could be set
};

/// Gives an open file the owner, the group, the access list and the permissions of the earlier one that it is
/// to replace, as far as the system lets the user. Where the group cannot be kept, another group gets no more
/// than everybody has. `earlier` is the state of `file`.
KeptRights KeepRights(int descriptor, const std::filesystem::path& file, const struct stat& earlier);

}  // namespace wxbrg
