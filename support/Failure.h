#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <system_error>

namespace wxbrg {

/// The failure kinds of the run-time that the program tests for or meets. Failures of the program's own
/// carry message numbers from 2000 upward, or 999 and 32755 for the two cancelled dialogs.
namespace FailureKind {
inline constexpr std::int32_t invalidCall = 5;  ///< invalid call; also a key that is not in a collection
inline constexpr std::int32_t overflow = 6;
inline constexpr std::int32_t outOfMemory = 7;
inline constexpr std::int32_t typeMismatch = 13;
inline constexpr std::int32_t outOfStackSpace = 28;
inline constexpr std::int32_t fileNotFound = 53;
inline constexpr std::int32_t diskFull = 61;
inline constexpr std::int32_t fileAccess = 75;
inline constexpr std::int32_t pathNotFound = 76;
inline constexpr std::int32_t objectNotSet = 91;
inline constexpr std::int32_t invalidFileFormat = 321;
inline constexpr std::int32_t duplicateKey = 457;
}  // namespace FailureKind

/// What lies behind a failure, for the one who is to remove it. No box shows it.
struct FailureCause {
    enum class Kind {
        none,          ///< nothing is known but the failure
        system,        ///< the operating system reported an error
        nameTooShort,  ///< the name of the definition file leaves none for the log
    };

    Kind kind = Kind::none;
    std::error_code error;  ///< for `Kind::system`: the number, with the words that go with it
    std::string file;       ///< the file that it is about; empty for none

    /// An error of the system, by its number (`errno`).
    static FailureCause OfSystem(int number, std::string_view file = {});
    /// Memory that ran out.
    static FailureCause OfMemory(std::string_view file = {});
};

/// A failure on its way to the frame that handles it: the one exception that a procedure of the export lets
/// out when something is wrong.
struct Failure : std::exception {
    /// A failure of the run-time, described in the run-time's own words. `detail` (a file name, a place)
    /// follows these words behind ": " where it is given.
    explicit Failure(std::int32_t number, std::string_view detail = {});

    /// A failure with a description of its own.
    static Failure WithDescription(std::int32_t number, std::string description);

    /// The same failure with what lies behind it.
    Failure Because(FailureCause cause) &&;

    const char* what() const noexcept override { return Description.c_str(); }

    std::int32_t Number;
    std::string Description;
    FailureCause Cause;
};

/// The run-time's words for a failure kind, empty for a number that is none.
std::string_view RunTimeWords(std::int32_t number);

}  // namespace wxbrg
