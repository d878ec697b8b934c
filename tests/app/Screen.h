#pragma once

#include <QApplication>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <gtest/gtest.h>

#include "engine/Desktop.h"

namespace blunko::test {

/// Writes down, in order, what is heard and said.
class LoggingDesktop : public QuietDesktop {
 public:
  QStringList Log;
  void Beep() override { Log += QStringLiteral("beep"); }
  void PlaySoundFile(const std::string& File, bool) override { Log += QString::fromStdString(File); }
  void MessageBox(const std::string& Text) override { Log += QString::fromStdString(Text); }
};

/// Runs steps while a modal call waits, each on the next modal window of its kind: a real box or dialog that is open.
/// A window that doesn't come within the time fails the test and is closed, so that nothing hangs.
class WhileModal {
 public:
  using Step = std::function<void(QWidget& Window)>;

  explicit WhileModal(std::vector<Step> Steps) : steps(std::move(Steps)) {
    clock.start();
    QObject::connect(&timer, &QTimer::timeout, &timer, [this] { Look(); });
    timer.start(5);
  }
  ~WhileModal() { EXPECT_EQ(done, steps.size()) << "modal windows that came up"; }

 private:
  void Look() {
    constexpr int Limit = 10000;  // ms
    QWidget* Window = QApplication::activeModalWidget();
    if (Window == nullptr || !Window->isVisible()) return;
    if (clock.elapsed() > Limit) {
      ADD_FAILURE() << "still open: " << Window->windowTitle().toStdString();
      Window->close();
    } else if (Window != seen && done < steps.size()) {
      seen = Window;
      // Not in the timer's own call: a step that waits would keep the timer from looking again.
      QMetaObject::invokeMethod(
          Window, [Run = steps[done++], Window] { Run(*Window); }, Qt::QueuedConnection);
    }
  }

  std::vector<Step> steps;
  std::size_t done = 0;
  QPointer<QWidget> seen;  ///< it may stay open after its step, or while that waits
  QTimer timer;
  QElapsedTimer clock;
};

/// Takes the addresses that would be opened in the system's programs.
class Shell : public QObject {
  Q_OBJECT

 public:
  Shell() {
    for (const char* Scheme : {"http", "https", "mailto"}) {
      QDesktopServices::setUrlHandler(QLatin1String(Scheme), this, "Open");
    }
  }
  ~Shell() override {
    for (const char* Scheme : {"http", "https", "mailto"}) QDesktopServices::unsetUrlHandler(QLatin1String(Scheme));
  }
  QStringList Opened;

 public slots:
  void Open(const QUrl& Address) { Opened += Address.toString(); }
};

}  // namespace blunko::test
