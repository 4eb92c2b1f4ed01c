#include "run/LogLine.h"

#include "options/MessageTexts.h"
#include "run/clsExceptionHandler.h"
#include "run/clsIOHandler.h"
#include "run/modGlobals.h"

namespace wxbrg {

std::string GetNLSMessage(std::int16_t Severity, std::int32_t ID, std::string_view S1, std::string_view S2,
                          std::string_view S3, std::string_view S4) {
    return clsExceptionHandler::FormatMessageID(Severity, ID) + GetNLSString(ID, S1, S2, S3, S4);
}

void WriteNoteLine(std::int32_t number, std::int16_t severity, const MessageArguments& arguments) {
    gBlock.gIOHandler->WriteLog(
        GetNLSMessage(severity, number, arguments[0], arguments[1], arguments[2], arguments[3]));
    CountSeverity(gBlock.gRunReport.notes, severity);
}

}  // namespace wxbrg
