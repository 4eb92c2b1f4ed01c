#include "cli/Transcript.h"

#include <gtest/gtest.h>

#include <sstream>

#include "cli/BatchDialogs.h"
#include "platform/scripted/NoProgress.h"

namespace wxbrg::cli {
namespace {

std::string LineOf(const RunReport& report) {
    std::ostringstream out;
    TranscribeEnding(report, out);
    return out.str();
}

TEST(TranscribingMessageBox, WritesTheBoxAndItsAnswerOnALine) {
    std::ostringstream boxes;
    std::ostringstream out;
    NoProgress progress;
    PrintingMessageBox answering(boxes, progress);
    TranscribingMessageBox box(answering, out);
    EXPECT_EQ(box.Show("The \"title\"", "WXB00999Q \r\nEnd?", 65572), BoxAnswer::yes);
    EXPECT_EQ(
        out.str(),
        R"({"box": {"title": "The \"title\"", "text": "WXB00999Q \r\nEnd?", "buttons": 65572, "answer": 6}})"
        "\n");
    EXPECT_NE(boxes.str(), "");
}

TEST(TranscribeEnding, TellsEachWay) {
    RunReport report;
    EXPECT_EQ(LineOf(report), "{\"exit\": \"normal\"}\n");
    report.number = 2020;
    report.procedure = "clsARIS_Interface.RetrieveSelectedARISModels";
    report.ending = RunEnding::endedByFailure;
    EXPECT_EQ(LineOf(report),
              "{\"exit\": \"ended by failure\", \"number\": 2020, \"procedure\": "
              "\"clsARIS_Interface.RetrieveSelectedARISModels\"}\n");
    report.ending = RunEnding::unknownFailure;
    report.number = -5;
    EXPECT_EQ(LineOf(report),
              "{\"exit\": \"unknown failure\", \"number\": -5, \"procedure\": "
              "\"clsARIS_Interface.RetrieveSelectedARISModels\"}\n");
    report.ending = RunEnding::noLanguageLibrary;
    EXPECT_EQ(LineOf(report), "{\"exit\": \"no language library\"}\n");
    report.ending = RunEnding::error;
    report.error = "what \"went\" wrong";
    EXPECT_EQ(LineOf(report), "{\"exit\": \"error\", \"text\": \"what \\\"went\\\" wrong\"}\n");
}

/// Notes the stages that are reported.
class NotingProgress : public Progress {
  public:
    void Report(std::string_view stage, std::uint64_t, std::uint64_t) override { last = stage; }
    std::string last = "working";
};

TEST(PrintingMessageBox, PrintsTitleAndTextWholeBehindTheProgressLine) {
    std::ostringstream out;
    NotingProgress progress;
    PrintingMessageBox box(out, progress);
    EXPECT_EQ(box.Show("Title", "Warning WXB02060E \r\nline two", 65584), BoxAnswer::ok);
    EXPECT_EQ(out.str(), "Title\n  Warning WXB02060E \n  line two\n");
    EXPECT_EQ(progress.last, "");
}

TEST(PrintingMessageBox, AnswersOkAndYes) {
    std::ostringstream out;
    NoProgress progress;
    PrintingMessageBox box(out, progress);
    EXPECT_EQ(box.Show("t", "x", BoxStyle::ok + 16), BoxAnswer::ok);
    EXPECT_EQ(box.Show("t", "x", BoxStyle::okCancel + 16), BoxAnswer::ok);
    EXPECT_EQ(box.Show("t", "x", BoxStyle::yesNo + 32), BoxAnswer::yes);
}

TEST(GivenFileDialog, GivesTheNameAsItIs) {
    GivenFileDialog dialog("out");
    FileDialogSettings settings;
    settings.defaultExtension = "wpx";
    EXPECT_EQ(dialog.AskSaveName(settings), "out");
}

}  // namespace
}  // namespace wxbrg::cli
