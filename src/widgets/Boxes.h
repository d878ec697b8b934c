#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include "widgets/ButtonPlus.h"
#include "widgets/PlacedDialog.h"

namespace blunko {

/// The product's name: default title of the message boxes.
inline const QString ProductName = QStringLiteral("Tollmoor Blunko");

/// What a box bears beside its text.
enum class Sign { None, Question, Warning };

/// A modal box: a text and the buttons that answer it, in the game's own type. It stands in the middle of its owner,
/// wide enough for its title, and its lines are of like length.
class GameBox : public PlacedDialog {
  Q_OBJECT

 public:
  enum class Kind { Message, Question, Input };
  GameBox(QWidget* Owner, Kind Which, const QString& Title, const QString& Text, Sign Bears = Sign::None);

  QLabel* lblText;
  QLineEdit* txtAnswer = nullptr;  ///< of an input box; takes only letters that the game's files can carry
  // The buttons that a box of the kind has.
  ButtonPlus *cmdOK = nullptr, *cmdCancel = nullptr, *cmdYes = nullptr, *cmdNo = nullptr;

 private:
  QWidget* MakeSign(Sign Bears);
  int LeastWidth() const;
  QLineEdit* MakeInput();
  QHBoxLayout* MakeAnswers(Kind Which);
  ButtonPlus* Answer(const char* Name, const QString& Caption, int Result);
};

/// The boxes that the game asks with. They stand over the dialog that is open, else over `Table`, whatever other window
/// is active.

/// A text and an OK button under the product's name.
void ShowMessage(QWidget* Table, const QString& Text, Sign Bears = Sign::None);
/// A question with Yes and No, which is what Enter and Esc answer; true for Yes.
bool AskQuestion(QWidget* Table, const QString& Text, const QString& Title, Sign Bears);
/// One line of text to type, `Preset` in it; the empty string on Cancel.
QString AskText(QWidget* Table, const QString& Prompt, const QString& Title, const QString& Preset);

}  // namespace blunko
