#pragma once

#include <string>

#include "platform/Platform.h"

namespace wxbrg {

/// The mapping profile that counts for every run of a program: the one beside it, which bears its name.
std::string ProfileBesideProgram(const std::string& programDirectory, const std::string& programName);

/// The name of the mapping profile of a run on a platform; empty where there is to be none.
std::string MappingProfilePath(const Platform& platform);

/// The mapping profile as a run finds it.
struct ProfileFile {
    std::string name;  ///< as by `MappingProfilePath`
    std::string text;  ///< each line ends in CR LF; empty where the file is, or is not there
};

/// Reads the mapping profile of a platform as a run does. The global block is made anew. Throws where it is
/// there and cannot be read.
ProfileFile ReadProfileFile(Platform& platform);

}  // namespace wxbrg
