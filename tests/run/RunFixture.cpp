#include "tests/run/RunFixture.h"

#include <array>
#include <cstdio>

#include "run/clsARIS_Interface.h"
#include "run/clsExceptionHandler.h"
#include "run/clsIOHandler.h"
#include "run/modGlobals.h"

namespace wxbrg {

namespace {

using testing::AllOf;
using testing::Field;

constexpr std::string_view lineEnd = "\r\n";

/// Numbers that stand in the library of a test, from `first` to `last`.
struct NumberRange {
    std::uint32_t first;
    std::uint32_t last;
    std::uint32_t step;
};
constexpr std::array textNumbers{NumberRange{1000, 1040, 10}, NumberRange{2000, 2230, 10},
                                 NumberRange{3000, 3140, 10}, NumberRange{4000, 4020, 10},
                                 NumberRange{50000, 50029, 1}};

MemoryLanguageLibraries::Texts LibraryTexts() {
    MemoryLanguageLibraries::Texts texts;
    for (const NumberRange& range : textNumbers)
        for (std::uint32_t number = range.first; number <= range.last; number += range.step)
            texts[number] = TestText(static_cast<std::int32_t>(number));
    return texts;
}

std::string NumberText(int number, char severity) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "WXB%s%05d%c ", number < 0 ? "-" : "", std::abs(number),
                  severity);
    return text.data();
}

std::string DescribedText(std::int32_t header, const std::string& id, std::string_view procedure,
                          std::string_view description) {
    return TestText(header, {id, procedure}).append(lineEnd) +
           TestText(1020).append(lineEnd).append(description);
}

}  // namespace

void PrintTo(const ShownBox& box, std::ostream* stream) {
    *stream << box.title << " (" << box.buttons << "): " << testing::PrintToString(box.text);
}

void PrintTo(const RunEnd& end, std::ostream* stream) {
    *stream << "ending " << static_cast<int>(end.ending) << " by " << end.number;
}

std::string TestText(std::int32_t number, std::initializer_list<std::string_view> arguments) {
    constexpr int placeholders = 4;
    std::string text = std::to_string(number);
    const auto* argument = arguments.begin();
    for (int i = 1; i <= placeholders; ++i) {
        text.push_back('|');
        if (argument != arguments.end())
            text.append(*argument++);
        else
            text.append("%" + std::to_string(i) + "$s");
    }
    return text;
}

std::string FailureBoxText(int number, std::string_view procedure, std::string_view description) {
    return DescribedText(1000, NumberText(number, 'C'), procedure, description);
}
std::string WarningBoxText(int number, std::string_view procedure, std::string_view description) {
    return DescribedText(1010, NumberText(number, 'E'), procedure, description);
}
std::string QuestionBoxText(int number, std::string_view procedure) {
    return TestText(1010, {NumberText(number, 'Q'), procedure}) + "\r\n\r\n" + TestText(1030) + "\r\n";
}
std::string UnknownFailureBoxText(int number, std::string_view procedure, std::string_view description) {
    return DescribedText(1040, NumberText(number, 'C'), procedure, description);
}

testing::Matcher<const ShownBox&> Box(const std::string& text, std::int32_t buttons) {
    return AllOf(Field(&ShownBox::title, "ARIS to Tarnlight Workflow Bridge"), Field(&ShownBox::text, text),
                 Field(&ShownBox::buttons, buttons));
}
testing::Matcher<const ShownBox&> FailureBox(int number, std::string_view procedure,
                                             std::string_view description) {
    return Box(FailureBoxText(number, procedure, description), 65552);
}
testing::Matcher<const ShownBox&> WarningBox(int number, std::string_view procedure,
                                             std::string_view description) {
    return Box(WarningBoxText(number, procedure, description), 65584);
}
testing::Matcher<const ShownBox&> QuestionBox(int number, std::string_view procedure) {
    return Box(QuestionBoxText(number, procedure), 65572);
}
testing::Matcher<const ShownBox&> UnknownFailureBox(int number, std::string_view procedure,
                                                    std::string_view description) {
    return Box(UnknownFailureBoxText(number, procedure, description), 65553);
}

testing::Matcher<const std::optional<RunEnd>&> EndedRun(RunEnding ending, std::int32_t number) {
    return testing::Optional(AllOf(Field(&RunEnd::ending, ending), Field(&RunEnd::number, number)));
}

RunFixture::RunFixture() {
    RenewGlobals();
    fileSystem_.MakeFolder(platform_.programDirectory);
    languageLibraries_.Put("wxbrgENU.dll", LibraryTexts());
    gBlock.gPlatform = &platform_;
    gBlock.gRunRequest = &request_;
    gBlock.gResourceLibrary = languageLibraries_.Load("wxbrgENU.dll");
    languageLibraries_.asked.clear();
    gBlock.gExceptionHandler = gBlock.gPool.Create<clsExceptionHandler>();
    gBlock.gARISInterface = gBlock.gPool.Create<clsARIS_Interface>();
    gBlock.gIOHandler = gBlock.gPool.Create<clsIOHandler>();
    gBlock.gCurrentProcedure = "test.Caller";
}

RunFixture::~RunFixture() {
    RenewGlobals();
}

void RunFixture::AnswerNextQuestion(BoxAnswer answer) {
    script_ = AnswerScript({{ScriptedAction::cancelOptions, "", answer}});
    script_.TakeForOptions();
}

std::optional<RunEnd> RunFixture::RunIn(std::string_view name, const std::function<void(Frame&)>& body) {
    try {
        Procedure(name, body);
    } catch (const RunEnd& end) {
        return end;
    }
    return std::nullopt;
}

std::string RunFixture::Bytes(const std::string& name) const {
    return fileSystem_.Bytes(name).value_or("(no such file)");
}

}  // namespace wxbrg
