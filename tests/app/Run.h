#pragma once

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "storage/Folders.h"

namespace blunko::test {

/// The folders of a program that lives in a temporary one.
inline Folders FoldersIn(const QTemporaryDir& Place) {
  Folders All;
  All.Program = All.State = Place.path();
  All.BaseName = QStringLiteral("game");
  All.Temp = Place.path() + QStringLiteral("/temp/");
  QDir().mkpath(All.Temp);
  return All;
}

inline QByteArray BytesOf(const QString& Path) {
  QFile File(Path);
  return File.open(QIODevice::ReadOnly) ? File.readAll() : QByteArray();
}

/// Lets the event loops of a test run again after a program in it has ended, and has that end only by itself.
inline void BeginLoops() {
  QApplication::setQuitOnLastWindowClosed(false);
  QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
  QCoreApplication::exec();
}

/// Deals with the modal windows as they come up, one step each. An unexpected one is closed and fails the test, and so
/// does a wait beyond the limit, which ends all event loops.
class Answers : public QObject {
 public:
  using Step = std::function<void(QWidget*)>;

  explicit Answers(int Limit = 20000) {
    BeginLoops();
    qApp->installEventFilter(this);
    QTimer::singleShot(Limit, this, [this] {
      ADD_FAILURE() << "the time limit is reached with " << steps.size() << " windows to come";
      QCoreApplication::exit();
    });
  }
  ~Answers() override { EXPECT_EQ(steps.size(), 0U) << "windows didn't come up"; }

  /// "Title: text" of every message box.
  std::vector<std::string> Boxes;

  /// The next window is of this class and dealt with so.
  template <typename Dialog>
  void Expect(std::function<void(Dialog&)> Do) {
    steps.push_back([Do](QWidget* Shown) {
      auto* Expected = qobject_cast<Dialog*>(Shown);
      EXPECT_NE(Expected, nullptr) << "another window: " << Shown->metaObject()->className();
      Expected != nullptr ? Do(*Expected) : static_cast<void>(Shown->close());
    });
  }
  /// The next window is a message box and answered with this button.
  void Press(QMessageBox::StandardButton Button) {
    Expect<QMessageBox>([Button](QMessageBox& Box) {
      EXPECT_NE(Box.button(Button), nullptr) << Box.text().toStdString();
      Box.button(Button) != nullptr ? Box.button(Button)->click() : static_cast<void>(Box.close());
    });
  }

  bool eventFilter(QObject* Object, QEvent* Event) override {
    auto* Shown = Event->type() == QEvent::Show ? qobject_cast<QWidget*>(Object) : nullptr;
    if (Shown != nullptr && Shown->isModal()) {
      if (const auto* Box = qobject_cast<QMessageBox*>(Shown)) {
        Boxes.push_back((Box->windowTitle() + QStringLiteral(": ") + Box->text()).toStdString());
      }
      QTimer::singleShot(0, Shown, [this, Shown] { Next(Shown); });
    }
    return false;
  }

 private:
  void Next(QWidget* Shown) {
    if (steps.empty()) {
      ADD_FAILURE() << "unexpected window: " << Shown->windowTitle().toStdString();
      Shown->close();
      return;
    }
    const Step Do = steps.front();
    steps.pop_front();
    Do(Shown);
  }

  std::deque<Step> steps;
};

}  // namespace blunko::test
