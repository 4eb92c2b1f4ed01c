#pragma once

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <utility>

#include "aris/Repository.h"

namespace wxbrg {

/// A model that can be selected; nothing is in it.
class SelectableModel : public aris::Model {
  public:
    explicit SelectableModel(std::string guid) : guid_(std::move(guid)) {}

    std::string_view Guid() const override { return guid_; }
    std::string Name(std::int32_t /*locale*/) const override { return {}; }
    ARISAttr Attribute(std::int32_t /*attrTypeNum*/, std::int32_t /*locale*/) const override { return {}; }
    ARISGroup Group() const override { return {}; }
    std::string_view Type() const override { return {}; }
    std::int32_t TypeNum() const override { return 0; }
    ARISObjDefList ObjDefListFilter(std::string_view /*filter*/, std::int32_t /*locale*/,
                                    std::int32_t /*objTypeNum*/,
                                    std::string_view /*symbolFilter*/) const override {
        return ARISObjDefList();
    }

  private:
    std::string guid_;
};

class MockDatabase : public aris::Database {
  public:
    MOCK_METHOD(ARISModelList, FindModels,
                (std::int32_t, std::int32_t, std::int16_t, std::int32_t, std::string_view, std::int16_t),
                (const, override));
    MOCK_METHOD(std::string, ServerName, (), (const, override));
    MOCK_METHOD(std::string, Name, (std::int32_t), (const, override));
    MOCK_METHOD(ARISUser, ActiveUser, (), (const, override));
};

class MockReportComponent : public aris::ReportComponent {
  public:
    MOCK_METHOD(ARISDatabase, OpenDatabase,
                (std::string_view, std::string_view, std::string_view, std::string_view, std::string_view),
                (override));
};

class MockApplication : public aris::Application {
  public:
    MOCK_METHOD(ARISReportComponent, GetComponent, (std::string_view), (override));
};

class MockAutomation : public aris::Automation {
  public:
    MOCK_METHOD(ARISApplication, CreateObject, (std::string_view), (override));
};

}  // namespace wxbrg
