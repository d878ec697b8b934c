#include "app/QtDesktop.h"

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

#include "sound/Sounds.h"
#include "table/frmMain.h"
#include "widgets/Boxes.h"

namespace blunko {

void QtDesktop::Refresh() { form->ShowControls(); }

void QtDesktop::Sleep(int Milliseconds) {
  Refresh();
  if (WaitFactor == 0) return;
  QEventLoop Loop;
  QTimer::singleShot(static_cast<int>(Milliseconds * WaitFactor), Qt::PreciseTimer, &Loop, &QEventLoop::quit);
  Loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void QtDesktop::PumpEvents() {
  Refresh();
  QCoreApplication::processEvents(QEventLoop::AllEvents);
}

void QtDesktop::WaitForEvents() {
  Refresh();
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void QtDesktop::Beep() { QApplication::beep(); }

void QtDesktop::PlaySoundFile(const std::string& File, bool Always) {
  if (Always || !options.SoundDisabled) player.Play(QFile::decodeName(QByteArray::fromStdString(File)));
}

void QtDesktop::MessageBox(const std::string& Text) { ShowMessage(form, QString::fromStdString(Text)); }

bool QtDesktop::AskYesNo(const std::string& Text, const std::string& Title, bool Bare) {
  return AskQuestion(form, QString::fromStdString(Text), QString::fromStdString(Title),
                     Bare ? Sign::None : Sign::Question);
}

void QtDesktop::SetMousePointer(MousePointer Pointer) {
  Pointer == MousePointer::Hourglass ? form->setCursor(Qt::WaitCursor) : form->unsetCursor();
}

}  // namespace blunko
