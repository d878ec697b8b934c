#include <gtest/gtest.h>
#include <numeric>
#include <utility>

#include "engine/ScoreDice.h"
#include "tests/engine/Table.h"

namespace blunko::test {
namespace {

/// Lays faces on the table, 0 for an empty position.
std::string CodesOf(std::initializer_list<int> Faces) {
  Table table;
  std::size_t i = 0;
  int Up = 0;
  table.m.DieFace.fill(Absent);
  for (const int Face : Faces) {
    table.m.DieFace[i++] = static_cast<std::int16_t>(Face);
    ++Up;
  }
  table.game.ScoreDice(static_cast<std::uint8_t>(Up));
  return table.Codes();
}

TEST(ScoreDice, GivesEveryDieTheCodeOfItsGroup) {
  const struct {
    std::initializer_list<int> Faces;
    const char* Codes;
  } Rows[] = {
      {{1, 2, 3, 4, 5, 6}, "y y y y y y"}, {{6, 4, 2, 1, 3, 5}, "y y y y y y"}, {{2, 2, 3, 3, 4, 4}, "z z z z z z"},
      {{1, 5, 2, 1, 5, 2}, "z z z z z z"}, {{1, 1, 1, 1, 5, 5}, "g g g g 5 5"}, {{1, 5, 1, 5, 1, 5}, "a e a e a e"},
      {{2, 2, 2, 3, 3, 3}, "b b b c c c"}, {{6, 6, 6, 6, 6, 6}, "x x x x x x"}, {{4, 4, 1, 4, 4, 4}, "p p 1 p p p"},
      {{2, 2, 3, 3}, "0 0 0 0 99 99"},     {{1, 2, 3, 4, 5}, "1 0 0 0 5 99"},   {{3, 3, 3}, "c c c 99 99 99"},
      {{2, 3, 4, 6, 2, 3}, "0 0 0 0 0 0"}, {{5}, "5 99 99 99 99 99"},           {{2, 2, 2, 2, 3, 3}, "h h h h 0 0"},
      {{6, 6, 6, 6}, "l l l l 99 99"},     {{1, 1}, "1 1 99 99 99 99"},         {{5, 5, 5, 5, 5}, "q q q q q 99"},
  };
  for (const auto& Row : Rows) EXPECT_EQ(CodesOf(Row.Faces), Row.Codes);
}

TEST(ScoreDice, EveryCodeIsWorthItsPoints) {
  // Three of a kind is 100 times the face, 1000 for ones; each further die of the kind doubles.
  for (int Count = 3; Count <= 6; ++Count) {
    for (int Face = 1; Face <= 6; ++Face) {
      const char Letter = static_cast<char>('a' + 6 * (Count - 3) + Face - 1);
      EXPECT_EQ(PointsOf(Word(Letter)), (Face == 1 ? 1000 : 100 * Face) << (Count - 3)) << Letter;
    }
  }
  const std::pair<Word, int> Others[]{{"1", 100}, {"5", 50}, {"y", 1500}, {"z", 500}, {"0", 0}, {"99", 0}};
  for (const auto& [Code, Points] : Others) EXPECT_EQ(PointsOf(Code), Points) << std::string_view(Code);
}

/// Points of all scorers of a roll, found by counting alone.
int PointsByCounting(const std::array<int, 7>& Count, int Dice) {
  const auto All = [&Count](auto Test) { return std::all_of(Count.begin() + 1, Count.end(), Test); };
  if (Dice == 6 && All([](int n) { return n == 1; })) return 1500;
  if (Dice == 6 && All([](int n) { return n % 2 == 0 && n < 4; })) return 500;
  int Points = 0;
  for (int Face = 1; Face <= 6; ++Face) {
    const int Single = Face == 1 ? 100 : Face == 5 ? 50 : 0;
    const int Triple = Face == 1 ? 1000 : 100 * Face;
    Points += Count[static_cast<std::size_t>(Face)] < 3 ? Count[static_cast<std::size_t>(Face)] * Single
                                                        : Triple << (Count[static_cast<std::size_t>(Face)] - 3);
  }
  return Points;
}

TEST(ScoreDice, AllRollsOfOneToSixDiceScoreWhatTheirCountsAreWorth) {
  Table table;
  for (int Dice = 1; Dice <= 6; ++Dice) {
    int Rolls = 1;
    for (int i = 0; i < Dice; ++i) Rolls *= 6;
    for (int Roll = 0; Roll < Rolls; ++Roll) {
      std::array<int, 7> Count{};
      table.m.DieFace.fill(Absent);
      for (int i = 0, Rest = Roll; i < Dice; ++i, Rest /= 6) {
        table.m.DieFace[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(1 + Rest % 6);
        ++Count[static_cast<std::size_t>(1 + Rest % 6)];
      }
      table.game.ScoreDice(static_cast<std::uint8_t>(Dice));
      int Points = 0;
      std::string Seen;
      for (const Word& Code : table.m.DieScoreCode) {  // a letter counts once, a single die each time
        if (Code.front() >= 'a' && Seen.find(Code.front()) != Seen.npos) continue;
        Seen += Code.front();
        Points += PointsOf(Code);
      }
      ASSERT_EQ(Points, PointsByCounting(Count, Dice)) << Dice << " dice, codes " << table.Codes();
    }
  }
}

}  // namespace
}  // namespace blunko::test
