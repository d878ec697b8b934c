#pragma once

#include <QString>

namespace blunko {

/// Longest name of a seat, in letters.
inline constexpr int LongestName = 14;
/// Longest name that can be typed for the high rollers lists.
inline constexpr int LongestListName = 30;

/// Parts the fields of the texts that hold several names.
inline constexpr QChar FieldSeparator(0xA4);

/// Whether a name may hold the letter: the game's files carry the letters of Latin-1, but for the separator, control
/// characters, the soft hyphen, which nobody sees, and the last one, which doesn't survive the scrambling of the lists.
constexpr bool IsNameLetter(char32_t Letter) {
  return (Letter >= 0x20 && Letter < 0x7F) ||
         (Letter >= 0xA0 && Letter < 0xFF && Letter != FieldSeparator.unicode() && Letter != QChar::SoftHyphen);
}

/// The text as a name can hold it: other letters are folded to their base letters ("Łukasz" to "Lukasz"), and left out
/// where they have none.
QString HeldToNameRule(const QString& Text);

}  // namespace blunko
