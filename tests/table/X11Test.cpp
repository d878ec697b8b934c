#include <QProcess>
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
}

}  // namespace blunko::test
