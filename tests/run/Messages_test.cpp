// The table of messages against the catalogue of their texts.

#include "run/Messages.h"

#include <gmock/gmock.h>

#include <cctype>
#include <fstream>
#include <map>
#include <string>

namespace wxbrg {
namespace {

constexpr std::int32_t firstCaption = 50000;

/// How many arguments the line of a message names: "%1$s" to "%4$s", in order.
std::size_t ArgumentsNamedIn(const std::string& line) {
    std::size_t count = 0;
    while (line.find("%" + std::to_string(count + 1) + "$s") != std::string::npos) ++count;
    return count;
}

/// The messages of the catalogue below the captions, with the number of arguments that each line names.
std::map<std::int32_t, std::size_t> Catalogue() {
    std::map<std::int32_t, std::size_t> catalogue;
    std::ifstream file(WXBRG_SOURCE_FOLDER "/lang/messages.txt");
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || std::isdigit(static_cast<unsigned char>(line.front())) == 0) continue;
        const std::int32_t number = std::stoi(line);
        if (number < firstCaption) catalogue[number] = ArgumentsNamedIn(line);
    }
    return catalogue;
}

TEST(Messages, TheTableAndTheCatalogueHoldTheSameNumbersWithTheSameArguments) {
    std::map<std::int32_t, std::size_t> table;
    for (const MessageRow& row : messages) table[NumberOf(row.name)] = row.arguments;
    EXPECT_EQ(table, Catalogue());
}

TEST(Messages, NotesHaveASeverityAndPartsOfOtherTextsHaveNone) {
    for (const MessageRow& row : messages) {
        const std::int32_t number = NumberOf(row.name);
        EXPECT_EQ(row.severity != Severity::none, number >= 2000 && number < 4000) << number;
    }
}

TEST(Messages, ANumberThatIsNoneHasNoRow) {
    EXPECT_EQ(FindMessage(0), nullptr);
    EXPECT_EQ(FindMessage(2001), nullptr);
    EXPECT_EQ(FindMessage(60000), nullptr);
    ASSERT_NE(FindMessage(2100), nullptr);
    EXPECT_EQ(FindMessage(2100)->name, Message::ruleMissing);
}

TEST(Messages, AMessageInItsPlaceHasItsNumberAndSeverity) {
    constexpr MessageWith<3> threeArguments = Message::objectOfWrongKind;
    EXPECT_EQ(threeArguments.Number(), 2120);
    EXPECT_EQ(threeArguments.Severity(), Severity::critical);
}

}  // namespace
}  // namespace wxbrg
