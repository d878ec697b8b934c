#include <QElapsedTimer>
#include <QTest>

#include <functional>
#include <gtest/gtest.h>

#include "app/QtDesktop.h"
#include "sound/Sounds.h"
#include "table/frmMain.h"
#include "tests/support/Table.h"

namespace blunko::test {
namespace {

struct PaintWatch : QObject {
  std::function<void()> OnPaint;
  bool eventFilter(QObject*, QEvent* Event) override {
    if (Event->type() == QEvent::Paint) OnPaint();
    return false;
  }
};

/// What the person sees on the real desktop while a handler waits, or doesn't.
TEST(TheRealDesktop, EveryFaceOfTumblingDiceIsPaintedAtOnce) {
  for (const double WaitFactor : {0.0, 0.5}) {
    SCOPED_TRACE(WaitFactor);
    Table Seats;
    Sounds Silent;
    QtDesktop Real(Silent, Seats.Options);
    Game RealGame{Seats.m, Seats.t, Seats.Options, Real, Seats.Others, Seats.Numbers};
    frmMain Window(RealGame);
    Real.WaitFactor = WaitFactor;
    Real.ShowOn(Window);
    Window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&Window, 2000));
    Window.Handle([&] { Seats.Begin({"Ann", "Bob"}); });

    constexpr int Cycles = 5;
    std::vector<int> Expected{0}, Painted{0};  // what the first die shows, from the empty place on
    for (int Cycle = 0; Cycle < Cycles; ++Cycle) {
      for (int Die = 0; Die < 6; ++Die) Seats.Numbers.Faces.push_back((Cycle + Die) % 6 + 1);
      Expected.push_back(112 + Cycle + 1);
    }
    Seats.Numbers.Faces.insert(Seats.Numbers.Faces.end(), {6, 4, 4, 3, 2, 1});
    Expected.push_back(112 + 1);  // sorted

    std::string Status;
    PaintWatch Die, Line;
    Window.Picture1[0]->installEventFilter(&Die);
    Window.lblStatus->installEventFilter(&Line);
    Die.OnPaint = [&] {
      if (Painted.back() != Window.Picture1[0]->Picture()) Painted.push_back(Window.Picture1[0]->Picture());
    };
    Line.OnPaint = [&] { Status += Window.lblStatus->text().toStdString() + '|'; };
    QElapsedTimer Clock;
    Clock.start();
    QTest::mouseClick(Window.cmdRoll, Qt::LeftButton);
    EXPECT_GE(Clock.elapsed(), static_cast<qint64>(Cycles * 6 * 10 * WaitFactor));
    EXPECT_EQ(Painted, Expected);
    EXPECT_EQ(Status, "Rolling...|Select Dice.|");
  }
}

}  // namespace
}  // namespace blunko::test
