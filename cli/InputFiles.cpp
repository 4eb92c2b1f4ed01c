#include "cli/InputFiles.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include "mapping/ProfileFile.h"
#include "options/MessageTexts.h"
#include "platform/FileIdentity.h"
#include "platform/Path.h"

namespace wxbrg::cli {

std::vector<InputFile> CommonInputFiles(const ToolEnvironment& environment, const std::string& language,
                                        const std::optional<std::string>& profile) {
    std::vector<InputFile> files;
    for (const std::string& options : environment.optionFiles)
        files.push_back({"the file of the stored options", options});
    files.push_back(
        {"the language library", FileInFolder(environment.programDirectory, LanguageLibraryName(language))});
    files.push_back({"the mapping profile", profile.value_or(ProfileBesideProgram(
                                                environment.programDirectory, environment.programName))});
    return files;
}

const InputFile* InputLostBy(const std::string& name, const std::vector<InputFile>& inputs) {
    const std::filesystem::path file = ResolvedFile(PathOf(name));
    const std::array places{PathOf(name), StageOf(file), PartialOf(file)};
    const auto lost = std::find_if(inputs.begin(), inputs.end(), [&](const InputFile& input) {
        return !input.name.empty() &&
               std::any_of(places.begin(), places.end(), [&](const std::filesystem::path& place) {
                   return IsSameFile(place, PathOf(input.name));
               });
    });
    return lost == inputs.end() ? nullptr : &*lost;
}

bool IsPipe(const std::string& name) {
    std::error_code error;
    return std::filesystem::is_fifo(PathOf(name), error);
}

bool IsNamedPipe(const std::string& name) {
    std::error_code error;
    return IsPipe(name) && !std::filesystem::canonical(PathOf(name), error).empty();
}

}  // namespace wxbrg::cli
