#include <QGuiApplication>

#include <gtest/gtest.h>

// The network needs an event loop, the hardware survey the screens.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QGuiApplication app(argc, argv);
  return RUN_ALL_TESTS();
}
