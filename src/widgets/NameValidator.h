#pragma once

#include <QValidator>

#include "storage/NameRule.h"

namespace blunko {

/// Lets only names in that the game's files can carry; the other letters of a pasted text are folded to them or left
/// out.
class NameValidator : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& Text, int& Cursor) const override {
    const QString Before = HeldToNameRule(Text.left(Cursor)).left(LongestName);
    Text = HeldToNameRule(Text).left(LongestName);
    Cursor = static_cast<int>(Before.size());
    return Acceptable;
  }
};

}  // namespace blunko
