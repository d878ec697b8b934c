#include <QApplication>

#include <gtest/gtest.h>

#include "widgets/Materials.h"

// With the rings of the game, and outliving its windows as the game does. Unless the scale is set to 1, the windows
// have twice their size, on a screen that holds them and gives them frames: that shows more.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qgetenv("QT_SCALE_FACTOR") != "1") {
    qputenv("QT_SCALE_FACTOR", "2");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" TBK_TEST_FILES "/support/screen.json");
  }
  QApplication app(argc, argv);
  blunko::RingStandardControls();
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setCursorFlashTime(0);  // a caret is always seen
  return RUN_ALL_TESTS();
}
