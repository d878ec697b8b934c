#include "table/DiceSets.h"

#include <algorithm>

#include "engine/GameOptions.h"

namespace blunko {

namespace {

constexpr DiceSet Same(const char* Name, int Base, QRgb Colour) { return {Name, Base, Colour, Colour, Colour}; }

constexpr DiceSet Sets[] = {
    Same("Blue", 100, qRgb(0, 128, 0)),
    Same("Red", 106, qRgb(0, 128, 0)),
    Same("Antique", 112, qRgb(166, 2, 2)),
    {"Pablo", 118, qRgb(0, 0, 128), qRgb(236, 238, 228), qRgb(0, 0, 128)},
    {"Clocks", 124, qRgb(192, 0, 0), qRgb(28, 246, 164), qRgb(28, 246, 164)},
    Same("Green", 130, qRgb(0, 0, 0)),
    Same("Digi-1", 136, qRgb(0, 0, 0)),
    Same("Digital", 142, qRgb(0, 0, 0)),
    Same("Clouds", 148, qRgb(0, 0, 255)),
    Same("Marbles", 154, qRgb(128, 128, 255)),
    Same("Keys", 160, qRgb(0, 0, 255)),
    Same("Billiards", 166, qRgb(0, 128, 0)),
    Same("Bubbles", 172, qRgb(0, 128, 255)),
    Same("Patriot", 178, qRgb(0, 0, 128)),
    Same("Computer", 184, qRgb(0, 0, 0)),
    Same("Roman", 190, qRgb(0, 0, 0)),
};

static_assert(std::ranges::all_of(Sets, [](const DiceSet& Set) { return IsDiceSet(Set.Base); }));

constexpr const char* Offered[] = {"Blue",  "Red",    "Clouds",  "Antique",  "Marbles", "Patriot",
                                   "Pablo", "Clocks", "Bubbles", "Computer", "Digital"};

}  // namespace

std::span<const char* const> OfferedDiceSets() { return Offered; }

const DiceSet* FindDiceSet(int Base) {
  const auto* const Found = std::ranges::find(Sets, Base, &DiceSet::Base);
  return Found == std::end(Sets) ? nullptr : Found;
}

const DiceSet* FindDiceSet(const QString& Name) {
  const auto* const Found = std::ranges::find(Sets, Name, [](auto& Set) { return QLatin1String(Set.Name); });
  return Found == std::end(Sets) ? nullptr : Found;
}

QColor StartColour(int Base) {
  const DiceSet* Set = FindDiceSet(Base);
  return Set == nullptr ? QColor(Qt::black) : QColor(Set->Start);
}

}  // namespace blunko
