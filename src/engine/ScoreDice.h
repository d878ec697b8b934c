#pragma once

#include <string_view>

namespace blunko {

/// The codes that aren't a group's letter. A code other than `NoScore` and `NoDie` is a scorer.
inline constexpr std::string_view NoScore = "0";
inline constexpr std::string_view NoDie = "99";

/// Points that a scorer, or the whole group that bears the code, adds to the turn; 0 for every other code.
int PointsOf(std::string_view Code);

constexpr bool IsScorer(std::string_view Code) { return Code != NoScore && Code != NoDie; }

}  // namespace blunko
