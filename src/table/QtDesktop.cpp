#include "table/QtDesktop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

#include "storage/NameRule.h"
#include "table/NameValidator.h"

namespace blunko {

namespace {

constexpr int PromptWidth = 340;  // px

}  // namespace

void QtDesktop::Sleep(int Milliseconds) {
  ShowControls();
  if (WaitFactor == 0) return;
  QEventLoop Loop;
  QTimer::singleShot(static_cast<int>(Milliseconds * WaitFactor), Qt::PreciseTimer, &Loop, &QEventLoop::quit);
  Loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void QtDesktop::PumpEvents() {
  ShowControls();
  QCoreApplication::processEvents(QEventLoop::AllEvents);
}

void QtDesktop::WaitForEvents() {
  ShowControls();
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void QtDesktop::Beep() { QApplication::beep(); }

void QtDesktop::PlaySoundFile(const std::string& File, bool Always) {
  if (PlayFile) PlayFile(QFile::decodeName(QByteArray::fromStdString(File)), Always);
}

void QtDesktop::MessageBox(const std::string& Text) {
  ShowControls();
  ShowMessage(QString::fromStdString(Text));
}

bool QtDesktop::AskYesNo(const std::string& Text, const std::string& Title) {
  ShowControls();
  return AskQuestion(QString::fromStdString(Text), QString::fromStdString(Title));
}

void QtDesktop::SetMousePointer(MousePointer Pointer) {
  if (ShowPointer) ShowPointer(Pointer);
}

QString QtDesktop::InputBox(const QString& Prompt, const QString& Title, const QString& Preset) {
  QInputDialog Box(QApplication::activeWindow());
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
  return Box.exec() == QDialog::Accepted ? Box.textValue() : QString();
}

namespace {

/// Runs a box over the active window and returns the button pressed.
int RunBox(QMessageBox::Icon Icon, const QString& Title, const QString& Text, QMessageBox::StandardButtons Buttons) {
  QMessageBox Box(Icon, Title, Text, Buttons, QApplication::activeWindow());
  Box.setTextFormat(Qt::PlainText);
  for (QAbstractButton* Button : Box.buttons()) Button->setIcon({});  // the words say it
  if (Buttons.testFlag(QMessageBox::No)) {
    Box.setDefaultButton(QMessageBox::No);
    Box.setEscapeButton(QMessageBox::No);
  }
  return Box.exec();
}

}  // namespace

void ShowMessage(const QString& Text) { RunBox(QMessageBox::Information, ProductName, Text, QMessageBox::Ok); }

bool AskQuestion(const QString& Text, const QString& Title) {
  return RunBox(QMessageBox::Question, Title, Text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

}  // namespace blunko
