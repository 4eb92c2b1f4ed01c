#include "aris/xml/XmlAutomation.h"

#include <functional>
#include <utility>
#include <vector>

#include "aris/xml/XmlRepository.h"
#include "platform/Path.h"

namespace wxbrg {

std::string XmlDatabaseFile(const std::string& folder, const std::string& database) {
    return FileInFolder(folder, database + ".aml");
}

/// The application and its component: opens files, and keeps what it has opened.
class XmlAutomation::Files final : public aris::Application, public aris::ReportComponent {
  public:
    /// `fileOf` gives the file that a database is.
    Files(std::function<std::string(std::string_view)> fileOf, std::string typesFile,
          aris::LoadProgress progress)
        : fileOf_(std::move(fileOf)), typesFile_(std::move(typesFile)), progress_(std::move(progress)) {}

    ARISReportComponent GetComponent(std::string_view name) override {
        return name == arisReportComponent ? ARISReportComponent(this) : ARISReportComponent();
    }

    ARISDatabase OpenDatabase(std::string_view server, std::string_view database, std::string_view reg,
                              std::string_view user, std::string_view password) override {
        opened_.push_back(OpenXmlRepository({fileOf_(database), typesFile_, progress_}));
        return opened_.back()
            ->Application()
            ->GetComponent(arisReportComponent)
            ->OpenDatabase(server, database, reg, user, password);
    }

    const aris::Catalogue* Loaded() const { return opened_.empty() ? nullptr : opened_.back().get(); }

  private:
    std::function<std::string(std::string_view)> fileOf_;
    std::string typesFile_;
    aris::LoadProgress progress_;
    std::vector<std::unique_ptr<aris::Catalogue>> opened_;
};

XmlAutomation::XmlAutomation(std::string folder, std::string typesFile, aris::LoadProgress progress)
    : XmlAutomation(std::make_unique<Files>(
          [folder = std::move(folder)](std::string_view database) {
              return XmlDatabaseFile(folder, std::string(database));
          },
          std::move(typesFile), std::move(progress))) {}

XmlAutomation XmlAutomation::ForFile(std::string file, std::string typesFile, aris::LoadProgress progress) {
    return XmlAutomation(std::make_unique<Files>(
        [file = std::move(file)](std::string_view) {
            return file;
        },
        std::move(typesFile), std::move(progress)));
}

XmlAutomation::XmlAutomation(std::unique_ptr<Files> files) : files_(std::move(files)) {}
XmlAutomation::XmlAutomation(XmlAutomation&&) noexcept = default;
XmlAutomation& XmlAutomation::operator=(XmlAutomation&&) noexcept = default;
XmlAutomation::~XmlAutomation() = default;

ARISApplication XmlAutomation::CreateObject(std::string_view programId) {
    return programId == arisProgramId ? ARISApplication(files_.get()) : ARISApplication();
}

const aris::Catalogue* XmlAutomation::Loaded() const {
    return files_->Loaded();
}

ARISApplication CatalogueAutomation::CreateObject(std::string_view programId) {
    return programId == arisProgramId ? catalogue_.Application() : ARISApplication();
}

}  // namespace wxbrg
