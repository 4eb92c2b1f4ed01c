#include "aris/xml/XmlRepository.h"

#include <algorithm>
#include <list>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "aris/xml/AmlReader.h"
#include "aris/xml/AmlStore.h"
#include "aris/xml/ExportFile.h"
#include "support/Failure.h"

namespace wxbrg {

namespace {

using xml::AmlStore;
using xml::XmlModel;

const XmlModel& XmlModelOf(const ARISModel& model) {
    return static_cast<const XmlModel&>(*model);
}

/// Models by type and name in one locale; those that share both in the order of the repository.
class ModelNames {
  public:
    ModelNames(const AmlStore& store, std::int32_t locale) : sorted_(store.modelList), locale_(locale) {
        std::stable_sort(sorted_.begin(), sorted_.end(), [this](const ARISModel& a, const ARISModel& b) {
            return KeyOf(a) < KeyOf(b);
        });
    }

    ARISModelList Find(std::int32_t typeNum, std::string_view name) const {
        const Key key(typeNum, name);
        const auto first = std::partition_point(sorted_.begin(), sorted_.end(), [&](const ARISModel& model) {
            return KeyOf(model) < key;
        });
        const auto last = std::partition_point(first, sorted_.end(), [&](const ARISModel& model) {
            return KeyOf(model) == key;
        });
        return ARISModelList(std::span(first, last));
    }

  private:
    using Key = std::tuple<std::int32_t, std::string_view>;
    Key KeyOf(const ARISModel& model) const {
        const XmlModel& own = XmlModelOf(model);
        return {own.TypeNum(), own.Data().Name(locale_)};
    }

    std::vector<ARISModel> sorted_;
    std::int32_t locale_;
};

class XmlUser final : public aris::User {
  public:
    explicit XmlUser(std::string name) : name_(std::move(name)) {}
    std::string Name(std::int32_t) const override { return name_; }

  private:
    std::string name_;
};

/// One connection to a repository, under one user.
class XmlDatabase final : public aris::Database {
  public:
    XmlDatabase(const AmlStore& store, std::string user) : store_(store), user_(std::move(user)) {}

    ARISModelList FindModels(std::int32_t attrTypeNum, std::int32_t modelTypeNum, std::int16_t option,
                             std::int32_t locale, std::string_view modelName,
                             std::int16_t flags) const override {
        if (attrTypeNum != nameAttribute || option != 1 || flags != 0)
            throw Failure(FailureKind::invalidCall);
        return names_.try_emplace(locale, store_, locale).first->second.Find(modelTypeNum, modelName);
    }
    std::string ServerName() const override { return "LOCAL"; }
    std::string Name(std::int32_t) const override { return store_.databaseName; }
    ARISUser ActiveUser() const override { return &user_; }

  private:
    const AmlStore& store_;
    XmlUser user_;
    mutable std::map<std::int32_t, ModelNames> names_;  // by locale, made when asked for
};

class XmlRepository final : public aris::Catalogue, aris::Application, aris::ReportComponent {
  public:
    explicit XmlRepository(std::unique_ptr<AmlStore> store) : store_(std::move(store)) {}

    ARISApplication Application() override { return this; }
    ARISModelList Models() const override { return ARISModelList(std::span(store_->modelList)); }
    std::vector<ARISGroup> GroupPath(ARISModel model) const override;
    const std::vector<aris::Locale>& Locales() const override { return store_->locales; }
    const std::vector<aris::UnknownType>& UnknownTypes() const override { return store_->unknownTypes; }
    const aris::DanglingReferences& Dangling() const override { return store_->dangling; }

  private:
    ARISReportComponent GetComponent(std::string_view name) override {
        return name == arisReportComponent ? ARISReportComponent(this) : ARISReportComponent();
    }
    ARISDatabase OpenDatabase(std::string_view, std::string_view, std::string_view, std::string_view user,
                              std::string_view) override {
        return &databases_.emplace_back(*store_, user.empty() ? store_->userName : std::string(user));
    }

    std::unique_ptr<AmlStore> store_;
    std::list<XmlDatabase> databases_;
};

std::vector<ARISGroup> XmlRepository::GroupPath(ARISModel model) const {
    std::vector<ARISGroup> path;
    std::uint32_t place = XmlModelOf(model).GroupPlace();
    while (place != xml::References::none) {
        const xml::XmlGroup& group = store_->groups[place];
        place = group.Parent();
        if (place != xml::References::none) path.push_back(&group);
    }
    std::reverse(path.begin(), path.end());
    return path;
}

}  // namespace

std::unique_ptr<aris::Catalogue> OpenXmlRepository(const aris::RepositoryRequest& request) {
    xml::TypeTable types;
    if (!request.typesFile.empty()) types.AddFile(request.typesFile);
    xml::ExportFile file(request.file);
    xml::AmlBuilder builder(std::move(types));
    xml::AmlReader(builder).Read(file, request.progress);
    std::unique_ptr<AmlStore> store = builder.Finish();
    if (store->databaseName.empty()) store->databaseName = xml::NameWithoutFolderAndExtension(request.file);
    return std::make_unique<XmlRepository>(std::move(store));
}

}  // namespace wxbrg
