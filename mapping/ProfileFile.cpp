#include "mapping/ProfileFile.h"

#include "platform/Path.h"
#include "run/clsIOHandler.h"
#include "run/modGlobals.h"

namespace wxbrg {

std::string MappingProfilePath(const Platform& platform) {
    return platform.mappingProfile.value_or(
        FileInFolder(platform.programDirectory, platform.programName + ".prf"));
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
