#pragma once

#include <cstddef>
#include <random>
#include <string>

#include "mapping/ProfileTable.h"

/// Texts and tables of mapping profiles made by chance; the same engine state gives the same ones.
namespace wxbrg {

using Engine = std::mt19937;

/// A text of up to `pieces` pieces: keywords in any case, words, numbers, separators of every kind in any
/// number, letters beyond ASCII. Nothing about it needs to be right.
std::string RandomText(Engine& engine, std::size_t pieces);

/// A text of more than 32,767 characters in which separators stand near, far or not at all.
std::string RandomLongText(Engine& engine);

/// A text that follows the grammar, but for a mistake here and there.
std::string RandomProfileText(Engine& engine);

/// A table of rules as a profile can hold them, with names of their own.
RuleTable RandomTable(Engine& engine);

}  // namespace wxbrg
