#pragma once

#include <memory>

#include "aris/Catalogue.h"

namespace wxbrg {

/// Opens an ARIS XML export (AML) and reads it whole. Throws `Failure`: 53 no such file; 76 it is a folder,
/// or a folder on its way is not there or is none; 75 it cannot be read; 321 it is broken XML, no export, or
/// holds a number that is none, or the types file does. The description says file, line, column, reason and
/// what to do.
std::unique_ptr<aris::Catalogue> OpenXmlRepository(const aris::RepositoryRequest& request);

}  // namespace wxbrg
