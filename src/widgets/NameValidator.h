#pragma once

#include <QValidator>

#include "storage/NameRule.h"

namespace blunko {

/// Lets only names in that the game's files can carry; from a pasted text the other letters are left out.
class NameValidator : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& Text, int& Cursor) const override {
    const QString Before = HeldToNameRule(Text.left(Cursor));
    Text = HeldToNameRule(Text);
    Cursor = static_cast<int>(Before.size());
    return Acceptable;
  }
};

}  // namespace blunko
