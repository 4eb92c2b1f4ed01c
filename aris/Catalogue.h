#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "aris/Repository.h"

namespace wxbrg::aris {

/// A type that an export names and the type table does not know.
struct UnknownType {
    enum class Kind { model, object, connection, attribute, symbol };
    Kind kind;
    std::string apiName;
    std::int32_t number = 0;        ///< the number it was given, 100000 or more
    std::uint64_t occurrences = 0;  ///< how often the export names it
};

/// What was left out at loading because it refers to nothing, by sort of reference.
struct DanglingReferences {
    std::uint64_t occurrencesWithoutDefinition = 0;
    std::uint64_t connectionsWithoutTarget = 0;
    std::uint64_t connectionOccurrencesWithoutDefinition = 0;
    std::uint64_t assignedModelsMissing = 0;

    std::uint64_t Total() const {
        return occurrencesWithoutDefinition + connectionsWithoutTarget +
               connectionOccurrencesWithoutDefinition + assignedModelsMissing;
    }
};

/// A language of the export.
struct Locale {
    std::int32_t number = 0;
    std::string name;  ///< as the export spells it, may be empty
};

/// What the command line tool asks of a repository beyond the operations of the export itself.
class Catalogue {
  public:
    virtual ~Catalogue() = default;

    /// A connection to this very repository: its component "Report" opens it under any database name.
    virtual ARISApplication Application() = 0;

    /// All models, in the order of the repository.
    virtual ARISModelList Models() const = 0;
    /// The groups around a model from the outermost to the innermost, the root group left out.
    virtual std::vector<ARISGroup> GroupPath(ARISModel model) const = 0;
    /// The languages, in the order of the repository.
    virtual const std::vector<Locale>& Locales() const = 0;

    /// In the order of their first appearance.
    virtual const std::vector<UnknownType>& UnknownTypes() const = 0;
    virtual const DanglingReferences& Dangling() const = 0;
};

/// How far the reading of a repository has come, in bytes of the file.
using LoadProgress = std::function<void(std::uint64_t done, std::uint64_t total)>;

/// What to open a repository with.
struct RepositoryRequest {
    std::string file;
    std::string typesFile;  ///< further rows for the type table; empty: none
    LoadProgress progress;  ///< called now and then while the file is read; may be empty
};

/// Opens and reads a repository whole. Throws `Failure` (numbers 53, 75, 76 or 321) with a description that
/// says what is wrong, where, and what to do.
using RepositoryFactory = std::function<std::unique_ptr<Catalogue>(const RepositoryRequest&)>;

}  // namespace wxbrg::aris
