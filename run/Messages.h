#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace wxbrg {

/// The severities: the icon of a message box, the letter of a message number, the level of a note.
namespace Severity {
inline constexpr std::int16_t none = 0;  ///< part of another text
inline constexpr std::int16_t critical = 16;
inline constexpr std::int16_t question = 32;
inline constexpr std::int16_t exclamation = 48;
inline constexpr std::int16_t information = 64;
}  // namespace Severity

/// The texts of the catalogue (lang/messages.txt) by name, with their numbers. The captions of the options
/// form are numbered in its own table.
enum class Message : std::int32_t {
    // Parts of message boxes.
    failureHeader = 1000,
    warningHeader = 1010,
    descriptionHeader = 1020,
    endQuestion = 1030,
    unknownFailureHeader = 1040,
    // Failures of the program's own.
    unknownFileMode = 2000,
    arisNotStarted = 2010,
    wrongSelection = 2020,
    unknownConnectionKind = 2030,
    unknownNameKind = 2040,
    nameMissing = 2050,
    modelLayoutNotConverted = 2060,
    activityLayoutNotConverted = 2070,
    controlPathsNotKnown = 2080,
    connectorPathsNotKnown = 2090,
    ruleMissing = 2100,
    ruleDoubled = 2110,
    objectOfWrongKind = 2120,
    keywordExpected = 2130,
    ruleNameExpected = 2140,
    equalsExpected = 2150,
    objectTypeExpected = 2160,
    attributeTypeExpected = 2170,
    connectionKindExpected = 2180,
    connectionTypeExpected = 2190,
    unknownProfileState = 2200,
    profileEmpty = 2210,
    profileOdd = 2220,
    searchTooDeep = 2230,
    // Notes in the log.
    oneOfSeveralTaken = 3000,
    severalPrograms = 3010,
    furtherModel = 3020,
    furtherObject = 3030,
    categoryCreated = 3040,
    processCreated = 3050,
    objectMapped = 3060,
    controlConnectorCreated = 3070,
    dataConnectorCreated = 3080,
    propertiesComplete = 3090,
    textChanged = 3100,
    exportComplete = 3110,
    severalDataCompared = 3120,
    controlFlowLoop = 3130,
    dataFlowLoop = 3140,
    // Words that are compared with texts of the repository.
    floatTypeWord = 4000,
    longTypeWord = 4010,
    stringTypeWord = 4020,  ///< every other word is one: it is never asked for
};

/// How a message is shown, and how many arguments fill its text.
struct MessageRow {
    Message name;
    std::int16_t severity;
    std::size_t arguments;
};

// clang-format off
inline constexpr auto messages = std::to_array<MessageRow>({
    {Message::failureHeader,              Severity::none,        2},
    {Message::warningHeader,              Severity::none,        2},
    {Message::descriptionHeader,          Severity::none,        0},
    {Message::endQuestion,                Severity::none,        0},
    {Message::unknownFailureHeader,       Severity::none,        2},

    {Message::unknownFileMode,            Severity::critical,    1},
    {Message::arisNotStarted,             Severity::critical,    0},
    {Message::wrongSelection,             Severity::critical,    1},
    {Message::unknownConnectionKind,      Severity::exclamation, 1},
    {Message::unknownNameKind,            Severity::exclamation, 2},
    {Message::nameMissing,                Severity::exclamation, 0},
    {Message::modelLayoutNotConverted,    Severity::exclamation, 1},
    {Message::activityLayoutNotConverted, Severity::exclamation, 1},
    {Message::controlPathsNotKnown,       Severity::exclamation, 0},
    {Message::connectorPathsNotKnown,     Severity::exclamation, 0},
    {Message::ruleMissing,                Severity::critical,    1},
    {Message::ruleDoubled,                Severity::exclamation, 1},
    {Message::objectOfWrongKind,          Severity::critical,    3},
    {Message::keywordExpected,            Severity::critical,    2},
    {Message::ruleNameExpected,           Severity::critical,    1},
    {Message::equalsExpected,             Severity::critical,    1},
    {Message::objectTypeExpected,         Severity::critical,    1},
    {Message::attributeTypeExpected,      Severity::critical,    1},
    {Message::connectionKindExpected,     Severity::critical,    1},
    {Message::connectionTypeExpected,     Severity::critical,    1},
    {Message::unknownProfileState,        Severity::critical,    2},
    {Message::profileEmpty,               Severity::exclamation, 0},
    {Message::profileOdd,                 Severity::exclamation, 0},
    {Message::searchTooDeep,              Severity::critical,    2},

    {Message::oneOfSeveralTaken,          Severity::exclamation, 2},
    {Message::severalPrograms,            Severity::information, 2},
    {Message::furtherModel,               Severity::information, 2},
    {Message::furtherObject,              Severity::information, 2},
    {Message::categoryCreated,            Severity::information, 1},
    {Message::processCreated,             Severity::information, 1},
    {Message::objectMapped,               Severity::information, 3},
    {Message::controlConnectorCreated,    Severity::information, 4},
    {Message::dataConnectorCreated,       Severity::information, 4},
    {Message::propertiesComplete,         Severity::information, 2},
    {Message::textChanged,                Severity::information, 2},
    {Message::exportComplete,             Severity::information, 1},
    {Message::severalDataCompared,        Severity::exclamation, 1},
    {Message::controlFlowLoop,            Severity::exclamation, 4},
    {Message::dataFlowLoop,               Severity::exclamation, 4},

    {Message::floatTypeWord,              Severity::none,        0},
    {Message::longTypeWord,               Severity::none,        0},
    {Message::stringTypeWord,             Severity::none,        0},
});
// clang-format on

constexpr std::int32_t NumberOf(Message name) {
    return static_cast<std::int32_t>(name);
}

static_assert(std::adjacent_find(messages.begin(), messages.end(),
                                 [](const MessageRow& one, const MessageRow& next) {
                                     return NumberOf(one.name) >= NumberOf(next.name);
                                 }) == messages.end(),
              "the rows rise by number, and each number has one");

/// The row of a number, or null.
constexpr const MessageRow* FindMessage(std::int32_t number) {
    const auto* const found = std::lower_bound(messages.begin(), messages.end(), number,
                                               [](const MessageRow& row, std::int32_t wanted) {
                                                   return NumberOf(row.name) < wanted;
                                               });
    return found != messages.end() && NumberOf(found->name) == number ? found : nullptr;
}

/// The arguments of a text, for its placeholders from the first on; empty behind the last.
using MessageArguments = std::array<std::string_view, 4>;

/// A message by its name, in a place that passes `Arguments` arguments to its text: the name of a message
/// that takes another number of them does not compile there.
template <std::size_t Arguments>
class MessageWith {
  public:
    consteval MessageWith(Message name) : row_(FindMessage(NumberOf(name))) {
        if (row_->arguments != Arguments) throw "this message takes another number of arguments";
    }

    constexpr std::int32_t Number() const { return NumberOf(row_->name); }
    constexpr std::int16_t Severity() const { return row_->severity; }

  private:
    const MessageRow* row_;
};

}  // namespace wxbrg
