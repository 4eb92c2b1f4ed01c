#pragma once

#include <string>
#include <string_view>

#include "tests/cases/runner/Case.h"
#include "tests/cases/runner/Replay.h"

namespace wxbrg::cases {

/// What differs between what a case expects and what its replay gave, to be read; empty where nothing does.
/// Files count byte for byte, the transcript by what its lines say.
std::string Difference(const Files& expected, const ReplayOutcome& outcome);

/// The first place where two texts differ: some lines in front of it and the lines of both that differ, with
/// their numbers, "-" before an expected line and "+" before one that came instead. Empty for equal texts.
std::string TextDifference(std::string_view expected, std::string_view got);

/// The text with characters that do not show, and bytes that are no UTF-8, as \t, \r, \x1B and so on.
std::string Visible(std::string_view text);

/// The command with which the present result of the case becomes the expected one.
std::string RecordCommand(const Case& wanted);

}  // namespace wxbrg::cases
