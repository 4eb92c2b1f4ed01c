#include "cli/RepositoryFileAutomation.h"

#include <filesystem>
#include <utility>

#include "platform/Path.h"
#include "support/Text.h"

namespace wxbrg::cli {

RepositoryFileAutomation::RepositoryFileAutomation(aris::RepositoryFactory openRepository, std::string file)
    : openRepository_(std::move(openRepository)), file_(std::move(file)) {}

ARISApplication RepositoryFileAutomation::CreateObject(std::string_view programId) {
    return programId == arisProgramId ? ARISApplication(this) : ARISApplication();
}

ARISReportComponent RepositoryFileAutomation::GetComponent(std::string_view name) {
    return name == arisReportComponent ? ARISReportComponent(this) : ARISReportComponent();
}

ARISDatabase RepositoryFileAutomation::OpenDatabase(std::string_view server, std::string_view database,
                                                    std::string_view reg, std::string_view user,
                                                    std::string_view password) {
    aris::RepositoryRequest request;
    request.file = file_;
    try {
        catalogue_ = openRepository_(request);
    } catch (const Failure& failure) {
        const std::string name = TextOf(PathOf(file_).filename());
        throw Failure::WithDescription(failure.Number, Replace(failure.Description, file_, name))
            .Because(failure.Cause);
    }
    return catalogue_->Application()
        ->GetComponent(arisReportComponent)
        ->OpenDatabase(server, database, reg, user, password);
}

}  // namespace wxbrg::cli
