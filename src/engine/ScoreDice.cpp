#include "engine/ScoreDice.h"

#include <algorithm>
#include <array>

#include "engine/Game.h"

namespace blunko {

namespace {

/// Points of the letters "a" to "z".
constexpr std::array<int, 26> LetterPoints{
    1000, 200,  300,  400,  500,  600,   // three of a kind
    2000, 400,  600,  800,  1000, 1200,  // four
    4000, 800,  1200, 1600, 2000, 2400,  // five
    8000, 1600, 2400, 3200, 4000, 4800,  // six
    1500,                                // straight
    500,                                 // three pairs
};

/// Letters of the kinds run from "a": three of a kind of the faces 1 to 6, then four, five and six of a kind.
Word KindCode(int Count, int Face) { return Word(static_cast<char>('a' + 6 * (Count - 3) + Face - 1)); }

}  // namespace

int PointsOf(const Word& Code) {
  if (Code == Single1) return 100;
  if (Code == Single5) return 50;
  const char Letter = Code.front();
  return Letter >= 'a' && Letter <= 'z' ? LetterPoints[static_cast<std::size_t>(Letter - 'a')] : 0;
}

void Game::ScoreDice(std::uint8_t NumDiceUp) {
  std::array<int, 7> Count{};  // by face
  for (int i = 0; i < Dice; ++i) {
    if (m.DieFace[i] != Absent) ++Count[m.DieFace[i]];
  }
  const auto Faces = [&Count](auto Test) { return std::all_of(Count.begin() + 1, Count.end(), Test); };

  if (NumDiceUp == Dice && Faces([](int n) { return n == 1; })) return m.DieScoreCode.fill(Straight);
  if (NumDiceUp == Dice && Faces([](int n) { return n == 0 || n == 2; })) return m.DieScoreCode.fill(ThreePairs);
  for (int i = 0; i < Dice; ++i) {
    const int Face = m.DieFace[i];
    if (Face == Absent) {
      m.DieScoreCode[i] = NoDie;
    } else if (Count[Face] >= 3) {
      m.DieScoreCode[i] = KindCode(Count[Face], Face);
    } else if (Face == 1) {
      m.DieScoreCode[i] = Single1;
    } else if (Face == 5) {
      m.DieScoreCode[i] = Single5;
    } else {
      m.DieScoreCode[i] = NoScore;
    }
  }
}

}  // namespace blunko
