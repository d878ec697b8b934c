#include <gtest/gtest.h>

#include "engine/ScoreDice.h"
#include "tests/support/Table.h"

namespace blunko::test {
namespace {

std::string CodesOf(Table& table, const std::vector<int>& Faces) {
  table.m.DieFace.fill(Absent);
  std::copy(Faces.begin(), Faces.end(), table.m.DieFace.begin());
  table.game.ScoreDice(static_cast<std::uint8_t>(Faces.size()));
  std::string All;
  for (const Word& Code : table.m.DieScoreCode) (All += ' ') += std::string_view(Code);
  return All;
}

TEST(ScoreDice, GivesEveryDieTheCodeOfItsGroup) {
  const std::pair<const char*, const char*> Rows[] = {
      {"641235", " y y y y y y"}, {"152152", " z z z z z z"}, {"111155", " g g g g 5 5"}, {"151515", " a e a e a e"},
      {"222333", " b b b c c c"}, {"666666", " x x x x x x"}, {"441444", " p p 1 p p p"}, {"222233", " h h h h 0 0"},
      {"234623", " 0 0 0 0 0 0"}, {"2233", " 0 0 0 0 99 99"}, {"12345", " 1 0 0 0 5 99"}, {"333", " c c c 99 99 99"},
      {"6666", " l l l l 99 99"}, {"5", " 5 99 99 99 99 99"}, {"11", " 1 1 99 99 99 99"}, {"55555", " q q q q q 99"},
  };
  Table table;
  for (const auto& [Faces, Codes] : Rows) EXPECT_EQ(CodesOf(table, Digits(Faces)), Codes) << Faces;
}

/// Points of all scorers of a roll, found by counting alone.
int PointsByCounting(const std::vector<int>& Faces) {
  std::vector<int> Count;
  for (int Face = 1; Face <= 6; ++Face) {
    Count.push_back(static_cast<int>(std::count(Faces.begin(), Faces.end(), Face)));
  }
  const std::vector<int> Sorted = [Count]() mutable { return std::sort(Count.begin(), Count.end()), Count; }();
  if (Sorted == std::vector{1, 1, 1, 1, 1, 1}) return 1500;
  if (Sorted == std::vector{0, 0, 0, 2, 2, 2}) return 500;
  int Points = (Count[0] < 3 ? 100 * Count[0] : 0) + (Count[4] < 3 ? 50 * Count[4] : 0);
  for (std::size_t i = 0; i < 6; ++i) {  // ones as if they had ten eyes
    if (Count[i] >= 3) Points += (i == 0 ? 1000 : 100 * (static_cast<int>(i) + 1)) << (Count[i] - 3);
  }
  return Points;
}

TEST(ScoreDice, AllRollsOfOneToSixDiceScoreWhatTheirCountsAreWorth) {
  Table table;
  for (std::size_t Dice = 1; Dice <= 6; ++Dice) {
    std::vector<int> Faces(Dice, 1);
    for (std::size_t Next = 0; Next < Dice;) {
      std::string Seen;
      int Points = 0;
      const std::string Codes = CodesOf(table, Faces);
      for (const Word& Code : table.m.DieScoreCode) {  // a letter counts once, a single die each time
        if (Code.front() >= 'a' && Seen.find(Code.front()) != Seen.npos) continue;
        Seen += Code.front();
        Points += PointsOf(Code);
      }
      ASSERT_EQ(Points, PointsByCounting(Faces)) << Codes;
      for (Next = 0; Next < Dice && ++Faces[Next] > 6; ++Next) Faces[Next] = 1;
    }
  }
}

}  // namespace
}  // namespace blunko::test
