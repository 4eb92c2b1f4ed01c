#pragma once

#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "aris/Catalogue.h"

namespace wxbrg::cli {

/// A model with a Guid, a type and names by language; it belongs to no group and shows nothing.
class FakeModel : public aris::Model {
  public:
    FakeModel(std::string guid, std::int32_t type, std::map<std::int32_t, std::string> names)
        : guid_(std::move(guid)), type_(type), names_(std::move(names)) {}

    std::string_view Guid() const override { return guid_; }
    std::string Name(std::int32_t locale) const override {
        const auto found = names_.find(locale);
        return found == names_.end() ? std::string() : found->second;
    }
    ARISAttr Attribute(std::int32_t, std::int32_t) const override { return {}; }
    ARISGroup Group() const override { return {}; }
    std::string_view Type() const override { return "type"; }
    std::int32_t TypeNum() const override { return type_; }
    ARISObjDefList ObjDefListFilter(std::string_view, std::int32_t, std::int32_t,
                                    std::string_view) const override {
        return {};
    }

  private:
    std::string guid_;
    std::int32_t type_;
    std::map<std::int32_t, std::string> names_;
};

/// A catalogue of models that a test puts in.
class FakeCatalogue : public aris::Catalogue {
  public:
    void Add(std::string guid, std::int32_t type, std::map<std::int32_t, std::string> names) {
        models_.emplace_back(std::move(guid), type, std::move(names));
    }
    void AddLocale(std::int32_t number, std::string name) { locales_.push_back({number, std::move(name)}); }

    ARISApplication Application() override { return {}; }
    ARISModelList Models() const override {
        std::vector<ARISModel> handles;
        for (const FakeModel& model : models_) handles.emplace_back(&model);
        return ARISModelList(std::move(handles));
    }
    std::vector<ARISGroup> GroupPath(ARISModel) const override { return {}; }
    const std::vector<aris::Locale>& Locales() const override { return locales_; }
    const std::vector<aris::UnknownType>& UnknownTypes() const override { return unknownTypes; }
    const aris::DanglingReferences& Dangling() const override { return dangling; }

    std::vector<aris::UnknownType> unknownTypes;
    aris::DanglingReferences dangling;

  private:
    std::deque<FakeModel> models_;
    std::vector<aris::Locale> locales_;
};

}  // namespace wxbrg::cli
