#include "cli/CauseText.h"

#include <new>
#include <ostream>

#include "support/ErrorAdvice.h"
#include "support/TerminalText.h"

namespace wxbrg::cli {

namespace {

std::string InFront(const std::string& file) {
    return file.empty() ? file : Printable(file) + ": ";
}

}  // namespace

std::string CauseText(const FailureCause& cause) {
    switch (cause.kind) {
        case FailureCause::Kind::nameTooShort:
            return InFront(cause.file) +
                   "The name is too short: the log is named by it without its last four characters. Give a "
                   "longer one, such as orders.wpx, then export again.";
        case FailureCause::Kind::system:
            if (!cause.error) break;
            return InFront(cause.file) + Printable(cause.error.message()) + " (" +
                   std::to_string(cause.error.value()) + "). " + std::string(AdviceOn(cause.error));
        case FailureCause::Kind::none:
            break;
    }
    return {};
}

void ReportCause(const RunReport& report, std::ostream& err) {
    if (report.ending == RunEnding::normal) return;
    const std::string text = CauseText(report.cause);
    if (!text.empty()) err << "wxbrg: " << text << '\n';
}

void ReportException(const std::exception& error, std::ostream& err) {
    if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr) {
        // Nothing here may ask for memory.
        err << "wxbrg: not enough memory. End other programs or raise the memory limit, then try again.\n";
        return;
    }
    err << "wxbrg: " << Printable(error.what()) << '\n';
    const auto* const failure = dynamic_cast<const Failure*>(&error);
    const std::string cause = failure == nullptr ? std::string() : CauseText(failure->Cause);
    if (!cause.empty()) err << "wxbrg: " << cause << '\n';
}

}  // namespace wxbrg::cli
