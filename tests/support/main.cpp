#include <QApplication>

#include <gtest/gtest.h>

#include "widgets/Materials.h"

// With the rings of the game, and outliving its windows as the game does.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QApplication app(argc, argv);
  blunko::RingStandardControls();
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
