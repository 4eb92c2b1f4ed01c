#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "aris/Repository.h"
#include "platform/Platform.h"
#include "platform/RunStack.h"
#include "support/Failure.h"

namespace wxbrg {

/// What is to be exported, handed over as such instead of on an ARIS command line.
struct ExportSelection {
    std::string user;
    std::string database;
    std::string server;
    std::string registry;
    std::int32_t locale = 0;
    std::vector<ARISModel> models;
};

/// How a run ended.
enum class RunEnding {
    normal,
    endedByFailure,  ///< the failure's number says that the run ends
    unknownFailure,  ///< a failure whose number nothing is known of
    noLanguageLibrary,
    error,  ///< the program itself failed: a bug, or a failure before failures can be handled
};

/// A count for each severity.
struct SeverityCounts {
    std::uint64_t critical = 0;     ///< 16
    std::uint64_t question = 0;     ///< 32
    std::uint64_t exclamation = 0;  ///< 48
    std::uint64_t information = 0;  ///< 64

    bool operator==(const SeverityCounts&) const = default;
};

/// The report of a run that is over.
struct RunReport {
    RunEnding ending = RunEnding::normal;
    std::int32_t number = 0;  ///< of the failure that ended the run
    std::string procedure;    ///< that was running when the run was ended
    std::string error;        ///< what went wrong, for `RunEnding::error`
    FailureCause cause;       ///< what lies behind the failure that ended the run, where that is known

    std::uint64_t modelsSelected = 0;
    std::uint64_t processes = 0;
    std::uint64_t objectsWritten = 0;  ///< the count of note 3110; 0 unless the run ended normally
    SeverityCounts notes;              ///< notes written to the log
    SeverityCounts boxes;              ///< message boxes shown
};

/// What a front end asks of a run.
struct RunRequest {
    /// The text behind the program's name: the switches /USR, /DB, /SVR, /REG, /SEL, /LOC. It counts when
    /// there is no `selection`.
    std::string commandLine;
    std::optional<ExportSelection> selection;
    /// Bytes of address space for the stack of the run.
    std::size_t stackSize = runStackSize;
    // What the front end itself does before and behind the run, on the run's own thread: windows belong to
    // the thread that has opened the first of them. Both may be empty.
    std::function<void()> atBegin = {};
    std::function<void(const RunReport&)> atEnd = {};
};

/// One whole export, from the language library to the end of the run: the entry that every front end goes
/// through. It never throws for what goes wrong in the run; the report says. The global block is made anew.
RunReport RunExport(const RunRequest& request, Platform& platform, aris::Automation& automation);

/// What the rules in force say of model types.
struct ProcessTypes {
    RunReport report;                 ///< ended otherwise than normally: the rules could not be read
    std::vector<std::int32_t> types;  ///< model type numbers, in the order of the rule
};

/// Reads the rules as a run does, from the platform's mapping profile or the default table, with the boxes
/// that this brings, and says which models are processes. The global block is made anew.
ProcessTypes ReadProcessTypes(Platform& platform);

}  // namespace wxbrg
