#include "cli/Transcript.h"

#include <ostream>

#include "cli/Json.h"

namespace wxbrg::cli {

namespace {

std::string_view EndingName(RunEnding ending) {
    switch (ending) {
        case RunEnding::normal:
            return "normal";
        case RunEnding::endedByFailure:
            return "ended by failure";
        case RunEnding::unknownFailure:
            return "unknown failure";
        case RunEnding::noLanguageLibrary:
            return "no language library";
        case RunEnding::error:
            break;
    }
    return "error";
}

}  // namespace

BoxAnswer TranscribingMessageBox::Show(std::string_view title, std::string_view text, std::int32_t buttons) {
    const BoxAnswer answer = answering_.Show(title, text, buttons);
    out_ << R"({"box": {"title": )" << JsonString(title) << R"(, "text": )" << JsonString(text)
         << R"(, "buttons": )" << buttons << R"(, "answer": )" << static_cast<std::int32_t>(answer) << "}}\n"
         << std::flush;
    return answer;
}

void TranscribeRefusal(const std::string& name, std::ostream& out) {
    out << R"({"refused": {"name": )" << JsonString(name) << R"(, "reason": "input"}})" << '\n' << std::flush;
}

void TranscribeEnding(const RunReport& report, std::ostream& out) {
    out << R"({"exit": )" << JsonString(EndingName(report.ending));
    if (report.ending == RunEnding::endedByFailure || report.ending == RunEnding::unknownFailure)
        out << R"(, "number": )" << report.number << R"(, "procedure": )" << JsonString(report.procedure);
    if (report.ending == RunEnding::error) out << R"(, "text": )" << JsonString(report.error);
    out << "}\n";
}

}  // namespace wxbrg::cli
