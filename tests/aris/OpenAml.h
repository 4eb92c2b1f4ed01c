#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "aris/Catalogue.h"
#include "aris/Repository.h"
#include "support/Failure.h"
#include "tests/TemporaryFolder.h"
#include "tests/aris/RepositoryText.h"

namespace wxbrg::test {

inline constexpr std::int32_t english = 1033;
inline constexpr std::int32_t german = 1031;

/// An export that is open, in a folder of its own.
class OpenAml {
  public:
    /// Throws what the opening throws.
    explicit OpenAml(std::string_view aml, const std::string& file = "demo.aml", std::string_view types = {});
    explicit OpenAml(const RepositoryText& repository) : OpenAml(AmlOf(repository)) {}

    aris::Catalogue& Catalogue() { return *catalogue_; }
    ARISDatabase Database(std::string_view user = {});
    /// The first model of the export.
    ARISModel Model() const { return catalogue_->Models().Get(0); }
    /// The objects of a type in a model.
    static ARISObjDefList Objects(ARISModel model, std::int32_t type) {
        return model->ObjDefListFilter("", english, type, "");
    }
    /// The one function that the first model shows.
    ARISObjDef Function() const { return Objects(Model(), 22).Get(0); }

  private:
    TemporaryFolder folder_;
    std::unique_ptr<aris::Catalogue> catalogue_;
};

/// The failure that opening a text ends with; number 0 where it opens.
Failure FailureOfOpening(std::string_view aml);
/// Likewise for a file.
Failure FailureOfOpeningFile(const std::string& file, const std::string& typesFile = {});

/// The connections of an object, in any direction.
inline ARISCxnDefList Connections(ARISObjDef object, std::int32_t kind, std::int32_t type) {
    return object->CxnListFilter(kind, "", english, type, connectionFilterConstant);
}

/// The names of the items of a list.
template <class List>
std::vector<std::string> Names(const List& list, std::int32_t locale = english) {
    std::vector<std::string> names;
    for (const auto& item : list) names.push_back(item->Name(locale));
    return names;
}

/// The Guids of the items of a list.
template <class List>
std::vector<std::string> Guids(const List& list) {
    std::vector<std::string> guids;
    for (const auto& item : list) guids.emplace_back(item->Guid());
    return guids;
}

}  // namespace wxbrg::test
