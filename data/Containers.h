#pragma once

#include <string_view>

#include "aris/Repository.h"
#include "data/clsDATA_STRUCTURE.h"
#include "support/Collection.h"

/// The one decision by which activities, programs and processes get their containers.
namespace wxbrg {

/// Sets a container by the data objects that flow through it. None: it stays as it is. One that has members:
/// its mapped structure; one without: a generated structure; one that is no data object: no structure, and
/// the container is empty then. Several: a generated structure, or the one with the same members.
void SetupContainer(Ref<clsDATA_STRUCTURE>& container, const Collection<ARISObjDef>& objects);

/// The same for the objects that a rule leads to.
void SetupRelatedContainer(std::string_view procedure, Ref<clsDATA_STRUCTURE>& container,
                           const ARISObjDef& item, std::string_view rule);

}  // namespace wxbrg
