#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "mapping/PathCollection.h"
#include "support/Collection.h"
#include "support/Ref.h"

namespace wxbrg {

/// As many tabs as the level says; none for level 0.
std::string Indent(std::int32_t Level);

/// The attribute of a rule of all drawn objects on the paths, a line each; without a rule all their
/// attributes. Begins with a line break unless it is empty.
std::string SetupPrintingOfConnectorAttribute(const PathCollection& ColPath, std::string_view RuleName = {});

}  // namespace wxbrg
