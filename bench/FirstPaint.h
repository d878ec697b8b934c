#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <time.h>

/// When the window has painted itself for the first time: prints the monotonic clock in nanoseconds, and quits.
class FirstPaint : public QObject {
 public:
  explicit FirstPaint(QWidget& Window) { Window.installEventFilter(this); }

 protected:
  bool eventFilter(QObject* Watched, QEvent* Event) override {
    if (Event->type() == QEvent::Paint) {
      Watched->removeEventFilter(this);
      QTimer::singleShot(0, this, [] {
        QGuiApplication::sync();  // what was painted is on the screen
        timespec Now{};
        clock_gettime(CLOCK_MONOTONIC, &Now);
        std::printf("%lld\n", Now.tv_sec * 1'000'000'000LL + Now.tv_nsec);
        std::fflush(stdout);
        std::_Exit(0);
      });
    }
    return false;
  }
};
