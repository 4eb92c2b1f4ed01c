#pragma once

#include <memory>
#include <string>

#include "aris/Catalogue.h"

namespace wxbrg::cli {

/// An ARIS with one database, which a repository file stands for whatever name is asked for. The file is read
/// when the database is opened; a failure then names it without its folder.
class RepositoryFileAutomation : public aris::Automation,
                                 public aris::Application,
                                 public aris::ReportComponent {
  public:
    RepositoryFileAutomation(aris::RepositoryFactory openRepository, std::string file);

    ARISApplication CreateObject(std::string_view programId) override;
    ARISReportComponent GetComponent(std::string_view name) override;
    ARISDatabase OpenDatabase(std::string_view server, std::string_view database, std::string_view reg,
                              std::string_view user, std::string_view password) override;

  private:
    aris::RepositoryFactory openRepository_;
    std::string file_;
    std::unique_ptr<aris::Catalogue> catalogue_;
};

}  // namespace wxbrg::cli
