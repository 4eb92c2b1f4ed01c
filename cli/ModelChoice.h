#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "aris/Catalogue.h"

namespace wxbrg::cli {

/// What the user says about the models to export.
struct ModelChoice {
    std::vector<std::string> models;  ///< names and Guids
    bool all = false;
};

/// Whether models of a type number are mapped as processes.
using IsProcessType = std::function<bool(std::int32_t)>;

/// The models of a process type, in the order of the repository.
std::vector<ARISModel> ProcessModels(const aris::Catalogue& catalogue, const IsProcessType& isProcessType);

/// The models to export, each once, in the order in which they were named: all of a process type; the named
/// ones; or, with neither asked for, the only one of a process type there is. A text names the model of that
/// Guid, else the one of that name in `locale`. Throws `UsageError` with the models to choose from where the
/// choice is not a single one, where a text names no model, and where it names none of a process type.
std::vector<ARISModel> ChooseModels(const ModelChoice& choice, const aris::Catalogue& catalogue,
                                    std::int32_t locale, const IsProcessType& isProcessType);

}  // namespace wxbrg::cli
