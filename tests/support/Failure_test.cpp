#include "support/Failure.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace wxbrg {
namespace {

TEST(Failure, SpeaksTheWordsOfTheRunTime) {
    const std::pair<std::int32_t, std::string> words[] = {
        {5, "invalid call or missing key"},
        {6, "overflow"},
        {7, "out of memory"},
        {13, "type mismatch"},
        {28, "out of stack space"},
        {53, "file not found"},
        {61, "disk full"},
        {75, "file access error"},
        {76, "path not found"},
        {91, "object not set"},
        {321, "invalid file format"},
        {457, "duplicate key"},
    };
    for (const auto& [number, description] : words) {
        const Failure failure(number);
        EXPECT_EQ(failure.Number, number);
        EXPECT_EQ(failure.Description, description);
    }
}

TEST(Failure, HasNoWordsForOtherNumbers) {
    for (const std::int32_t number : {0, 1, -5, 999, 2050, 32755}) {
        EXPECT_EQ(RunTimeWords(number), "");
        EXPECT_EQ(Failure(number).Description, "");
    }
}

TEST(Failure, NamesTheDetailBehindTheWords) {
    EXPECT_EQ(Failure(FailureKind::fileNotFound, "C:\\out.wpx").Description, "file not found: C:\\out.wpx");
}

TEST(Failure, TakesADescriptionOfItsOwn) {
    const Failure failure = Failure::WithDescription(2050, "The name 'Ä' is too long.");
    EXPECT_EQ(failure.Number, 2050);
    EXPECT_EQ(failure.Description, "The name 'Ä' is too long.");
}

TEST(Failure, CarriesWhatLiesBehindItBesideItsWords) {
    const Failure failure = Failure(61, "out.wpx").Because(FailureCause::OfSystem(ENOSPC, "out.wpx"));
    EXPECT_EQ(failure.Description, "disk full: out.wpx");
    EXPECT_EQ(failure.Cause.error, std::errc::no_space_on_device);
    EXPECT_EQ(failure.Cause.file, "out.wpx");
    EXPECT_EQ(Failure(61).Cause.kind, FailureCause::Kind::none);
}

TEST(Failure, IsAnExceptionThatSaysItsDescription) {
    try {
        throw Failure(FailureKind::diskFull, "/mnt/out.log");
    } catch (const std::exception& exception) {
        EXPECT_STREQ(exception.what(), "disk full: /mnt/out.log");
    }
}

}  // namespace
}  // namespace wxbrg
