#include "cli/ModelChoice.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "cli/UsageError.h"
#include "support/Text.h"

namespace wxbrg::cli {

namespace {

/// So many models an error lists; `wxbrg models` lists all.
constexpr std::size_t listedModels = 50;

std::vector<std::string> Listed(const std::vector<ARISModel>& models, std::int32_t locale) {
    std::vector<std::string> list;
    for (std::size_t i = 0; i < std::min(models.size(), listedModels); ++i)
        list.push_back(std::string(models[i]->Guid()).append("  ").append(models[i]->Name(locale)));
    if (models.size() > listedModels)
        list.push_back("and " + std::to_string(models.size() - listedModels) +
                       " more: \"wxbrg models\" lists them all");
    return list;
}

/// One choice at a time over a repository whose models were sorted out once.
class Chooser {
  public:
    Chooser(const aris::Catalogue& catalogue, std::int32_t locale, const IsProcessType& isProcessType)
        : locale_(locale), processes_(ProcessModels(catalogue, isProcessType)) {
        for (const ARISModel& model : catalogue.Models())
            if (!isProcessType(model->TypeNum())) others_.push_back(model);
    }

    std::vector<ARISModel> All() const {
        RequireSome();
        return processes_;
    }

    ARISModel Only() const {
        RequireSome();
        if (processes_.size() == 1) return processes_.front();
        throw UsageError("There are " + std::to_string(processes_.size()) +
                             " models to choose from; name some with --model, or give --all:",
                         Listed(processes_, locale_));
    }

    ARISModel Named(const std::string& text) const {
        const auto hasGuid = [&](const ARISModel& model) {
            return model->Guid() == text;
        };
        const auto hasName = [&](const ARISModel& model) {
            return model->Name(locale_) == text;
        };
        std::vector<ARISModel> found = Where(processes_, hasGuid);
        if (found.empty()) found = Where(processes_, hasName);
        if (found.size() == 1) return found.front();
        if (!found.empty())
            throw UsageError(
                "Several models have the name " + InQuotes(text) + "; give the Guid of one with --model:",
                Listed(found, locale_));
        std::vector<ARISModel> other = Where(others_, hasGuid);
        if (other.empty()) other = Where(others_, hasName);
        if (!other.empty())
            throw UsageError(
                "The model " + InQuotes(text) + " is of the type " + InQuotes(other.front()->Type()) + " (" +
                    std::to_string(other.front()->TypeNum()) + "), which is no process type. There are:",
                Listed(processes_, locale_));
        throw UsageError(
            "There is no model with the name or Guid " + InQuotes(text) + " in this language. There are:",
            Listed(processes_, locale_));
    }

  private:
    template <class Predicate>
    static std::vector<ARISModel> Where(const std::vector<ARISModel>& models, const Predicate& predicate) {
        std::vector<ARISModel> found;
        std::copy_if(models.begin(), models.end(), std::back_inserter(found), predicate);
        return found;
    }

    void RequireSome() const {
        if (processes_.empty())
            throw UsageError(
                "The repository holds no model of a process type, so there is nothing to export. " +
                std::string(others_.empty() ? "It holds no model at all."
                                            : "\"wxbrg models --all\" lists what it holds."));
    }

    std::int32_t locale_;
    std::vector<ARISModel> processes_;
    std::vector<ARISModel> others_;
};

}  // namespace

std::vector<ARISModel> ProcessModels(const aris::Catalogue& catalogue, const IsProcessType& isProcessType) {
    std::vector<ARISModel> models;
    for (const ARISModel& model : catalogue.Models())
        if (isProcessType(model->TypeNum())) models.push_back(model);
    return models;
}

std::vector<ARISModel> ChooseModels(const ModelChoice& choice, const aris::Catalogue& catalogue,
                                    std::int32_t locale, const IsProcessType& isProcessType) {
    const Chooser chooser(catalogue, locale, isProcessType);
    if (choice.all) return chooser.All();
    if (choice.models.empty()) return {chooser.Only()};
    std::vector<ARISModel> chosen;
    for (const std::string& text : choice.models) {
        const ARISModel model = chooser.Named(text);
        if (std::find(chosen.begin(), chosen.end(), model) == chosen.end()) chosen.push_back(model);
    }
    return chosen;
}

}  // namespace wxbrg::cli
