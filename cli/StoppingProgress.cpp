#include "cli/StoppingProgress.h"

namespace wxbrg::cli {

void StoppingProgress::Report(std::string_view stage, std::uint64_t done, std::uint64_t total) {
    if (stage.empty()) {
        // Only takes away what is shown, in front of other text, which is to come out whole.
        shown_->Report(stage, done, total);
        return;
    }
    if (stop_.Signal() != 0) shown_->Report({}, 0, 0);
    stop_.Check();
    shown_->Report(stage, done, total);
}

}  // namespace wxbrg::cli
