#pragma once

#include <QString>

class QWidget;

namespace blunko {

/// The product's name: default title of the message boxes.
inline const QString ProductName = QStringLiteral("Tollmoor Blunko");

/// Modal boxes. They stand over the dialog that is open, else over `Table`, whatever other window is active.

/// A text and an OK button under the product's name.
void ShowMessage(QWidget* Table, const QString& Text);
/// A question with Yes and No, which is what Enter and Esc answer; true for Yes.
bool AskQuestion(QWidget* Table, const QString& Text, const QString& Title);
/// One line of text to type, `Preset` in it; the empty string on Cancel. Only letters that the game's files can carry
/// can be typed.
QString AskText(QWidget* Table, const QString& Prompt, const QString& Title, const QString& Preset);

}  // namespace blunko
