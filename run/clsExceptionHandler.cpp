#include "run/clsExceptionHandler.h"

#include <cstdlib>
#include <optional>

#include "options/MessageTexts.h"
#include "run/FailurePolicy.h"
#include "run/modGlobals.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr std::string_view lineEnd = "\r\n";
/// Marks in a box text where the message number comes.
constexpr std::string_view messageIdMark = "<MessageID>";

std::string Header(MessageWith<2> header, std::string_view procedure) {
    return GetNLSString(header.Number(), messageIdMark, procedure).append(lineEnd);
}

std::string Body(const std::string& description) {
    return GetNLSString(NumberOf(Message::descriptionHeader)).append(lineEnd).append(description);
}

std::string Question() {
    return std::string(lineEnd).append(GetNLSString(NumberOf(Message::endQuestion))).append(lineEnd);
}

std::string_view SeverityText(std::int16_t severity) {
    switch (severity) {
        case Severity::critical:
            return "C ";
        case Severity::question:
            return "Q ";
        case Severity::exclamation:
            return "E ";
        case Severity::information:
            return "I ";
        default:
            return "? ";
    }
}

/// Puts the message number into a box text and shows it.
BoxAnswer ShowNumbered(const std::string& text, std::int16_t severity, std::int16_t number,
                       std::int32_t buttonSet) {
    const std::string id = clsExceptionHandler::FormatMessageID(severity, number);
    return clsExceptionHandler::ShowMessageBox(Replace(text, messageIdMark, id),
                                               buttonSet + severity + BoxStyle::foreground);
}

}  // namespace

void CountSeverity(SeverityCounts& counts, std::int32_t severity) {
    switch (severity) {
        case Severity::critical:
            ++counts.critical;
            break;
        case Severity::question:
            ++counts.question;
            break;
        case Severity::exclamation:
            ++counts.exclamation;
            break;
        case Severity::information:
            ++counts.information;
            break;
        default:
            break;
    }
}

clsExceptionHandler::clsExceptionHandler() {
    gBlock.gFailureContext = "";
}

FailureAction clsExceptionHandler::AnalyseError(std::int16_t Number, const std::string& Description) {
    const std::optional<FailurePolicy> policy = PolicyOf(Number);
    if (!policy) return FailureAction::unknown;
    bool otherwise = false;
    switch (policy->box) {
        case BoxForm::failure:
            ShowNumbered(Header(Message::failureHeader, gBlock.gCurrentProcedure) + Body(Description),
                         Severity::critical, Number, BoxStyle::ok);
            break;
        case BoxForm::warning:
            ShowNumbered(Header(Message::warningHeader, gBlock.gCurrentProcedure) + Body(Description),
                         Severity::exclamation, Number, BoxStyle::ok);
            break;
        case BoxForm::question:
            otherwise = ShowNumbered(Header(Message::warningHeader, gBlock.gCurrentProcedure) + Question(),
                                     Severity::question, Number, BoxStyle::yesNo) != BoxAnswer::yes;
            break;
    }
    return otherwise ? policy->otherwise : policy->answer;
}

void clsExceptionHandler::MercyfulExit(std::string_view ProcedureName, std::int16_t Number,
                                       const std::string& Description) {
    ShowNumbered(Header(Message::unknownFailureHeader, ProcedureName) + Body(Description), Severity::critical,
                 Number, BoxStyle::okCancel);
    throw RunEnd{RunEnding::unknownFailure, Number};
}

std::string clsExceptionHandler::FormatMessageID(std::int16_t Severity, std::int32_t Number) {
    constexpr std::size_t digits = 5;
    std::string number = std::to_string(std::abs(std::int64_t{Number}));
    if (number.size() < digits) number.insert(0, digits - number.size(), '0');
    return std::string("WXB").append(Number < 0 ? "-" : "").append(number).append(SeverityText(Severity));
}

BoxAnswer clsExceptionHandler::ShowMessageBox(std::string_view Text, std::int32_t Buttons) {
    CountSeverity(gBlock.gRunReport.boxes, Buttons & BoxStyle::severity);
    return gBlock.gPlatform->messageBox.Show(productName, Text, Buttons);
}

}  // namespace wxbrg
