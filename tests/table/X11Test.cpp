#include <QProcess>
#include <QScreen>
#include <QWindow>

#include "tests/table/TableForm.h"
#include "widgets/X11.h"

namespace blunko::test {

/// All of it once more on a display of its own, but for what the window system keeps a test from playing.
TEST(X11, TheTableUnderAWindowManager) {
  if (QGuiApplication::platformName() != QLatin1String("xcb")) {
    const char* const Script = ". '" TBK_TEST_FILES
                               "/program/display.sh'; open_display; QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1 "
                               "timeout 280 \"$0\" --gtest_filter=-*AKeyIsACommandOnce*:ScorePad.Stands*";
    QProcess Again;
    Again.start("bash", {"-c", Script, QCoreApplication::applicationFilePath()});
    ASSERT_TRUE(Again.waitForFinished(300'000));
    EXPECT_EQ(Again.exitCode(), 0) << Again.readAll().constData();
    return;
  }
  TableForm Game;
  EXPECT_TRUE(HearKeysReleasedOnce());
  for (const char* Way : {"keydown", "keyup"}) {
    QProcess::execute("xdotool", {Way, "Shift_L"});
    EXPECT_EQ(KeysDown().value().contains(50), Way == std::string("keydown"));
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return FrameTold(Game.Form).top() > 10; }));
  EXPECT_EQ(FrameTold(Game.Form), Game.Form.windowHandle()->frameMargins());
  const QRect Was = PlaceOnServer(Game.Form), Wide = Was.adjusted(-90, 0, 0, 0), New(0, 0, 90, Wide.height());
  QImage Whole(Wide.size(), QImage::Format_RGB32);
  Whole.fill(Qt::red);
  Game.Form.setMaximumSize(Wide.size());
  const auto Grows = [&] {  // a busy manager may take longer than the table waits
    Game.Form.setGeometry(Was);
    if (!QTest::qWaitFor([&] { return PlaceOnServer(Game.Form) == Was; })) return false;
    HoldRightEdge(Game.Form, Whole);
    Game.Form.setGeometry(Wide);
    AwaitPlace(Game.Form, Wide);
    const QImage Seen = Game.Form.screen()->grabWindow(0, Wide.x(), Wide.y(), 90, Wide.height()).toImage();
    return PlaceOnServer(Game.Form) == Wide && Seen.convertToFormat(Whole.format()) == Whole.copy(New);
  };
  EXPECT_TRUE(QTest::qWaitFor(Grows, 20'000)) << "what comes to light is seen before the program paints";
}

}  // namespace blunko::test
