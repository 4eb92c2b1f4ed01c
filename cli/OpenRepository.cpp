#include "cli/OpenRepository.h"

#include <algorithm>
#include <new>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "cli/InputFiles.h"
#include "cli/UsageError.h"
#include "support/Failure.h"
#include "support/TerminalText.h"

namespace wxbrg::cli {

namespace {

/// Reports which of the files that are about to be read are waited for until somebody writes to them.
void ReportPipes(const RepositoryArguments& given, std::ostream& err) {
    for (const std::string& file : {given.typesFile, given.file})
        if (IsNamedPipe(file)) err << "wxbrg: " << Printable(file) << " is a pipe: waiting for its writer.\n";
}

}  // namespace

aris::LoadProgress ProgressOf(Progress& progress, const std::string& repository) {
    return [&progress, stage = "reading " + repository](std::uint64_t done, std::uint64_t total) {
        progress.Report(stage, done, total);
    };
}

OpenedRepository OpenRepository(const RepositoryArguments& given, const ToolEnvironment& environment,
                                Progress& progress) {
    aris::RepositoryRequest request;
    request.file = given.file;
    request.typesFile = given.typesFile;
    request.progress = ProgressOf(progress, given.file);
    OpenedRepository opened;
    ReportPipes(given, environment.err);
    try {
        opened.catalogue = environment.openRepository(request);
    } catch (const std::bad_alloc&) {
        throw Failure(FailureKind::outOfMemory, "reading " + given.file)
            .Because(FailureCause::OfMemory(given.file));
    } catch (const Failure&) {
        // A request to stop interrupts the waiting for a pipe; it, not the failure, is to be reported.
        request.progress(0, 0);
        progress.Report({}, 0, 0);
        throw;
    }
    opened.locale = ChooseLocale(*opened.catalogue, given.locale);
    return opened;
}

std::int32_t ChooseLocale(const aris::Catalogue& catalogue, std::optional<std::int32_t> wanted) {
    const std::vector<aris::Locale>& locales = catalogue.Locales();
    if (locales.empty()) {
        if (wanted) return *wanted;
        throw UsageError("The export names no language; give its number with --locale.");
    }
    if (!wanted) return locales.front().number;
    const auto isWanted = [&](const aris::Locale& locale) {
        return locale.number == *wanted;
    };
    if (std::any_of(locales.begin(), locales.end(), isWanted)) return *wanted;
    std::vector<std::string> held;
    for (const aris::Locale& locale : locales)
        held.push_back(std::to_string(locale.number) + (locale.name.empty() ? "" : "  " + locale.name));
    throw UsageError("The export holds no language " + std::to_string(*wanted) + ". It holds:", held);
}

}  // namespace wxbrg::cli
