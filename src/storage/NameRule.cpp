#include "storage/NameRule.h"

#include <QList>

namespace blunko {

namespace {

/// Letters and marks that Unicode doesn't take apart, each with what is written in its stead.
const struct {
  char32_t Letter;
  const char* Folded;
} Folds[] = {{U'Ł', "L"},  {U'ł', "l"}, {U'Đ', "D"}, {U'đ', "d"},  {U'Ħ', "H"},  {U'ħ', "h"},  {U'Ŧ', "T"},
             {U'ŧ', "t"},  {U'ı', "i"}, {U'ĸ', "k"}, {U'Ŋ', "N"},  {U'ŋ', "n"},  {U'Œ', "OE"}, {U'œ', "oe"},
             {U'ẞ', "SS"}, {U'‘', "'"}, {U'’', "'"}, {U'“', "\""}, {U'”', "\""}, {U'–', "-"},  {U'—', "-"}};

QString FoldOf(char32_t Letter) {
  for (const auto& Fold : Folds) {
    if (Fold.Letter == Letter) return QLatin1String(Fold.Folded);
  }
  QString Held;
  const QString Parts = QString::fromUcs4(&Letter, 1).normalized(QString::NormalizationForm_KD);
  for (const QChar Part : Parts) {
    if (IsNameLetter(Part.unicode())) Held += Part;
  }
  return Held;
}

}  // namespace

QString HeldToNameRule(const QString& Text) {
  QString Held;
  for (const char32_t Letter : Text.normalized(QString::NormalizationForm_C).toUcs4()) {
    Held += IsNameLetter(Letter) ? QString::fromUcs4(&Letter, 1) : FoldOf(Letter);
  }
  return Held;
}

}  // namespace blunko
