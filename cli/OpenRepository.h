#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "aris/Catalogue.h"
#include "cli/ToolArguments.h"
#include "cli/ToolEnvironment.h"

namespace wxbrg::cli {

/// A repository that is read, and the language it is asked in.
struct OpenedRepository {
    std::unique_ptr<aris::Catalogue> catalogue;
    std::int32_t locale = 0;
};

/// Reports to `progress` how far the reading of a repository has come.
aris::LoadProgress ProgressOf(Progress& progress, const std::string& repository);

/// Reads the repository, reporting to `progress`. Throws `Failure` where it cannot be read and `UsageError`
/// where it does not hold the language that was asked for.
OpenedRepository OpenRepository(const RepositoryArguments& given, const ToolEnvironment& environment,
                                Progress& progress);

/// The wanted language; the first one of the repository where none is wanted. Throws `UsageError`, listing
/// the languages there are, where the repository does not hold it. One that names no language at all is taken
/// at the user's word.
std::int32_t ChooseLocale(const aris::Catalogue& catalogue, std::optional<std::int32_t> wanted);

}  // namespace wxbrg::cli
