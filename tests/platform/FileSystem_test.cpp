// What every file system promises.

#include <gmock/gmock.h>

#include "platform/posix/PosixFileSystem.h"
#include "platform/scripted/MemoryFileSystem.h"
#include "support/Failure.h"
#include "tests/TemporaryFolder.h"

namespace wxbrg {
namespace {

/// A file system with the folder `Name("folder")` in which there is one file, "there", that holds "abc".
struct MemorySubject {
    MemorySubject() { fileSystem.Put(Name("folder/there"), "abc"); }
    static std::string Name(const std::string& name) { return "/base/" + name; }
    MemoryFileSystem fileSystem;
};

struct PosixSubject {
    PosixSubject() {
        std::filesystem::create_directory(base / "folder");
        WriteBytes(base / "folder" / "there", "abc");
    }
    std::string Name(const std::string& name) const { return (base / name).string(); }
    TemporaryFolder base;
    PosixFileSystem fileSystem;
};

template <class Subject>
class FileSystemContract : public testing::Test {
  protected:
    std::string Name(const std::string& name) { return subject_.Name(name); }

    std::string Content(const std::string& name) {
        const auto file = system_.Open(Name(name), FileAccess::read);
        std::string bytes = file->ReadAll();
        file->Close();
        return bytes;
    }

    void Write(const std::string& name, FileAccess access, std::string_view bytes) {
        const auto file = system_.Open(Name(name), access);
        file->Write(bytes);
        file->Close();
    }

    /// Expects that opening fails with a number, and that the failure names the file.
    void ExpectFailure(const std::string& name, FileAccess access, std::int32_t number) {
        EXPECT_THAT(
            [&] {
                system_.Open(Name(name), access);
            },
            testing::Throws<Failure>(
                testing::AllOf(testing::Field(&Failure::Number, number),
                               testing::Field(&Failure::Description,
                                              std::string(RunTimeWords(number)) + ": " + Name(name)))))
            << name;
    }

    Subject subject_;
    FileSystem& system_ = subject_.fileSystem;
};

using Subjects = testing::Types<MemorySubject, PosixSubject>;
TYPED_TEST_SUITE(FileSystemContract, Subjects);

TYPED_TEST(FileSystemContract, ReadsAWholeFileAndThenItsEmptyRest) {
    const auto file = this->system_.Open(this->Name("folder/there"), FileAccess::read);
    EXPECT_EQ(file->ReadAll(), "abc");
    EXPECT_EQ(file->ReadAll(), "");
}

TYPED_TEST(FileSystemContract, BytesComeBackAsTheyWere) {
    std::string bytes;
    for (int i = 0; i < 300'000; ++i) bytes.push_back(static_cast<char>(i % 256));
    this->Write("folder/new", FileAccess::empty, bytes);
    EXPECT_EQ(this->Content("folder/new"), bytes);
}

TYPED_TEST(FileSystemContract, OpeningEmptyMakesOrEmptiesTheFile) {
    this->system_.Open(this->Name("folder/there"), FileAccess::empty);
    this->system_.Open(this->Name("folder/new"), FileAccess::empty);
    EXPECT_EQ(this->Content("folder/there"), "");
    EXPECT_EQ(this->Content("folder/new"), "");
}

TYPED_TEST(FileSystemContract, AppendingGoesOnAtTheEndOrMakesTheFile) {
    this->Write("folder/there", FileAccess::append, "d");
    this->Write("folder/there", FileAccess::append, "ef");
    this->Write("folder/new", FileAccess::append, "x");
    EXPECT_EQ(this->Content("folder/there"), "abcdef");
    EXPECT_EQ(this->Content("folder/new"), "x");
}

TYPED_TEST(FileSystemContract, WhatWasWrittenStandsWithoutAClose) {
    this->system_.Open(this->Name("folder/new"), FileAccess::empty)->Write("x");
    EXPECT_EQ(this->Content("folder/new"), "x");
}

TYPED_TEST(FileSystemContract, NamesAreUtf8) {
    this->Write("folder/Größe 漢", FileAccess::empty, "x");
    EXPECT_EQ(this->Content("folder/Größe 漢"), "x");
}

TYPED_TEST(FileSystemContract, AMissingFileIs53) {
    this->ExpectFailure("folder/missing", FileAccess::read, 53);
}

TYPED_TEST(FileSystemContract, AMissingFolderOnTheWayIs76) {
    for (const FileAccess access : {FileAccess::read, FileAccess::empty, FileAccess::append}) {
        this->ExpectFailure("missing/file", access, 76);
        this->ExpectFailure("missing/further/file", access, 76);
    }
}

TYPED_TEST(FileSystemContract, AFileOnTheWayIs76) {
    for (const FileAccess access : {FileAccess::read, FileAccess::empty, FileAccess::append})
        this->ExpectFailure("folder/there/file", access, 76);
}

TYPED_TEST(FileSystemContract, AFolderInPlaceOfTheFileIs75) {
    for (const FileAccess access : {FileAccess::read, FileAccess::empty, FileAccess::append})
        this->ExpectFailure("folder", access, 75);
}

TYPED_TEST(FileSystemContract, ReadingFromAFileToWriteAndWritingToOneToReadIs75) {
    EXPECT_THAT(
        [&] {
            this->system_.Open(this->Name("folder/new"), FileAccess::append)->ReadAll();
        },
        testing::Throws<Failure>(testing::Field(&Failure::Number, 75)));
    EXPECT_THAT(
        [&] {
            this->system_.Open(this->Name("folder/there"), FileAccess::read)->Write("x");
        },
        testing::Throws<Failure>(testing::Field(&Failure::Number, 75)));
}

}  // namespace
}  // namespace wxbrg
