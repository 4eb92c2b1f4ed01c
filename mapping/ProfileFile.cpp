#include "mapping/ProfileFile.h"

#include "platform/Path.h"
#include "run/clsIOHandler.h"
#include "run/modGlobals.h"

namespace wxbrg {

std::string ProfileBesideProgram(const std::string& programDirectory, const std::string& programName) {
    return FileInFolder(programDirectory, programName + ".prf");
}

std::string MappingProfilePath(const Platform& platform) {
    return platform.mappingProfile.value_or(
        ProfileBesideProgram(platform.programDirectory, platform.programName));
}

ProfileFile ReadProfileFile(Platform& platform) {
    RenewGlobals();
    gBlock.gPlatform = &platform;
    clsIOHandler files;
    ProfileFile profile{MappingProfilePath(platform), files.ReadMappingProfile()};
    RenewGlobals();
    return profile;
}

}  // namespace wxbrg
