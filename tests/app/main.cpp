#include <QApplication>

#include <gtest/gtest.h>

#include "widgets/FocusRing.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QApplication app(argc, argv);
  blunko::RingStandardControls();
  QApplication::setQuitOnLastWindowClosed(false);  // as the game does
  return RUN_ALL_TESTS();
}
