#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "aris/Catalogue.h"
#include "aris/Repository.h"

namespace wxbrg {

/// The file that is a database, by its name: that with the extension ".aml" in a folder.
std::string XmlDatabaseFile(const std::string& folder, const std::string& database);

/// Stands for ARIS where there is none: its application opens ARIS XML exports as databases. A repository
/// that was opened lives as long as the automation.
class XmlAutomation final : public aris::Automation {
  public:
    /// A database is the file that `XmlDatabaseFile` names; an empty folder is the working directory.
    /// `typesFile` holds further rows for the type table, empty for none.
    XmlAutomation(std::string folder, std::string typesFile, aris::LoadProgress progress);
    /// Every database is this file, whatever its name.
    static XmlAutomation ForFile(std::string file, std::string typesFile = {},
                                 aris::LoadProgress progress = {});

    XmlAutomation(XmlAutomation&&) noexcept;
    XmlAutomation& operator=(XmlAutomation&&) noexcept;
    ~XmlAutomation() override;

    /// An application for `arisProgramId`, no object for another program. Its component `arisReportComponent`
    /// fails to open a database as `OpenXmlRepository` does.
    ARISApplication CreateObject(std::string_view programId) override;

    /// The repository that was opened last, or null.
    const aris::Catalogue* Loaded() const;

  private:
    class Files;
    explicit XmlAutomation(std::unique_ptr<Files> files);

    std::unique_ptr<Files> files_;
};

/// Stands for ARIS with a repository that is open already; it must outlive the automation.
class CatalogueAutomation final : public aris::Automation {
  public:
    explicit CatalogueAutomation(aris::Catalogue& catalogue) : catalogue_(catalogue) {}

    ARISApplication CreateObject(std::string_view programId) override;

  private:
    aris::Catalogue& catalogue_;
};

}  // namespace wxbrg
