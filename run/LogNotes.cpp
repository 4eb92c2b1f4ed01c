#include "run/LogNotes.h"

#include "options/MessageTexts.h"
#include "run/clsExceptionHandler.h"
#include "run/clsIOHandler.h"
#include "run/modGlobals.h"

namespace wxbrg {

std::string GetNLSMessage(std::int16_t Severity, std::int32_t ID, std::string_view S1, std::string_view S2,
                          std::string_view S3, std::string_view S4) {
    return clsExceptionHandler::FormatMessageID(Severity, ID) + GetNLSString(ID, S1, S2, S3, S4);
}

void WriteNote(std::int16_t Severity, std::int32_t ID, std::string_view S1, std::string_view S2,
               std::string_view S3, std::string_view S4) {
    gBlock.gIOHandler->WriteLog(GetNLSMessage(Severity, ID, S1, S2, S3, S4));
    CountSeverity(gBlock.gRunReport.notes, Severity);
}

}  // namespace wxbrg
