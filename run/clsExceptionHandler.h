#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/MessageBox.h"
#include "run/FailurePolicy.h"
#include "run/Frame.h"

namespace wxbrg {

/// Decides by a failure's number what the user sees and whether the run goes on. It has no frames of its own,
/// for its boxes print `gCurrentProcedure` as the failing procedure left it.
class clsExceptionHandler {
  public:
    clsExceptionHandler();

    /// Shows the box that the number asks for, and answers what the tail is to do. A number that nothing is
    /// known of shows no box here.
    FailureAction AnalyseError(std::int16_t Number, const std::string& Description);

    /// Reports a failure with a number that is not known to the user, and ends the run.
    [[noreturn]] void MercyfulExit(std::string_view ProcedureName, std::int16_t Number,
                                   const std::string& Description);

    /// "WXB", the number in at least five digits, and the severity's letter with a blank: "WXB02010C ".
    static std::string FormatMessageID(std::int16_t Severity, std::int32_t Number);

    /// Shows a box under the product's name. `Buttons` is the sum of a button set, a severity and
    /// `BoxStyle::foreground`.
    static BoxAnswer ShowMessageBox(std::string_view Text, std::int32_t Buttons);
};

/// The title of every message box.
inline constexpr std::string_view productName = "ARIS to Tarnlight Workflow Bridge";

/// Adds one to the count of a severity.
void CountSeverity(SeverityCounts& counts, std::int32_t severity);

}  // namespace wxbrg
