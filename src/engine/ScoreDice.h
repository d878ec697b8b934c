#pragma once

#include "engine/Word.h"

namespace blunko {

/// The codes that aren't a group's letter. A code other than `NoScore` and `NoDie` is a scorer.
inline constexpr Word NoScore = "0";
inline constexpr Word NoDie = "99";
inline constexpr Word Single1 = "1", Single5 = "5";
/// Of the letters, those that a rule names: they run from three ones to six sixes, and end with all six dice.
inline constexpr Word ThreeTwos = "b", Straight = "y", ThreePairs = "z";

/// Points that a scorer, or the whole group that bears the code, adds to the turn; 0 for every other code.
int PointsOf(const Word& Code);

/// Three of a kind and more, and what takes all six dice.
constexpr bool IsCombination(const Word& Code) { return Code.front() >= 'a'; }

constexpr bool IsScorer(const Word& Code) { return Code != NoScore && Code != NoDie; }

}  // namespace blunko
