#pragma once

#include <set>
#include <string>

namespace wxbrg::cases {

/// Facts of one sort, as they stand in the lists.
using Facts = std::set<std::string>;

// What there is.

/// The numbers of the message catalogue.
Facts MessageNumbers();
/// The names of the built-in mapping rules.
Facts RuleNames();
/// The names of the stored options.
Facts OptionNames();
/// The words of the definition file: the texts with a capital letter among the literals of output/, and
/// `PreparedTexts`.
Facts OutputKeywords();
/// The words that the objects of other rooms prepare for it.
Facts PreparedTexts();

// What the expected results of all cases show that are not pending.

/// The message numbers in logs and transcripts. The numbers of words that are only compared with, 4000 to
/// 4999, are shown by a repository that holds their text.
Facts ShownMessageNumbers();
/// Those of `keywords` that stand in a definition file.
Facts ShownKeywords(const Facts& keywords);

}  // namespace wxbrg::cases
