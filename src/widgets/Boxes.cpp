#include "widgets/Boxes.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include "storage/NameRule.h"
#include "widgets/NameValidator.h"

namespace blunko {

namespace {

constexpr int PromptWidth = 340;  // px

QWidget* OwnerOfBox(QWidget* Table) {
  QWidget* const Dialog = QApplication::activeModalWidget();
  return Dialog != nullptr ? Dialog : Table;
}

void TakeIconsOff(const QDialog& Box) {  // the words say it
  for (auto* Button : Box.findChildren<QPushButton*>()) Button->setIcon({});
}

/// Runs a box and returns the button pressed.
int RunBox(QWidget* Table, QMessageBox::Icon Icon, const QString& Title, const QString& Text,
           QMessageBox::StandardButtons Buttons) {
  QMessageBox Box(Icon, Title, Text, Buttons, OwnerOfBox(Table));
  Box.setTextFormat(Qt::PlainText);
  TakeIconsOff(Box);
  if (Buttons.testFlag(QMessageBox::No)) {
    Box.setDefaultButton(QMessageBox::No);
    Box.setEscapeButton(QMessageBox::No);
  }
  return Box.exec();
}

}  // namespace

void ShowMessage(QWidget* Table, const QString& Text) {
  RunBox(Table, QMessageBox::NoIcon, ProductName, Text, QMessageBox::Ok);
}

bool AskQuestion(QWidget* Table, const QString& Text, const QString& Title) {
  return RunBox(Table, QMessageBox::Question, Title, Text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

QString AskText(QWidget* Table, const QString& Prompt, const QString& Title, const QString& Preset) {
  QInputDialog Box(OwnerOfBox(Table));
  Box.setWindowTitle(Title);
  Box.setLabelText(Prompt);
  Box.setTextValue(HeldToNameRule(Preset));
  if (auto* Label = Box.findChild<QLabel*>()) {
    Label->setWordWrap(true);
    Label->setMinimumWidth(PromptWidth);
    Label->setMinimumHeight(Label->heightForWidth(PromptWidth));
  }
  if (auto* Line = Box.findChild<QLineEdit*>()) {
    Line->setMaxLength(LongestName);
    Line->setValidator(new NameValidator(Line));
  }
  TakeIconsOff(Box);
  return Box.exec() == QDialog::Accepted ? Box.textValue() : QString();
}

}  // namespace blunko
