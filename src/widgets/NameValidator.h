#pragma once

#include <QValidator>

#include "storage/NameRule.h"

namespace blunko {

/// Lets only names in that the game's files can carry; the other letters of a pasted text are folded to them or left
/// out.
class NameValidator : public QValidator {
 public:
  NameValidator(QObject* Owner, int LongestText) : QValidator(Owner), longest(LongestText) {}

  State validate(QString& Text, int& Cursor) const override {
    const QString Before = HeldToNameRule(Text.left(Cursor)).left(longest);
    Text = HeldToNameRule(Text).left(longest);
    Cursor = static_cast<int>(Before.size());
    return Acceptable;
  }

 private:
  const int longest;
};

}  // namespace blunko
