#include <QApplication>
#include <QTimer>

#include <gtest/gtest.h>

/// A test whose program has ended leaves the event loops closed: this opens them for the next one.
class EventLoops : public testing::EmptyTestEventListener {
  void OnTestEnd(const testing::TestInfo&) override {
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
    QCoreApplication::exec();
  }
};

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);  // as in the program
  testing::UnitTest::GetInstance()->listeners().Append(new EventLoops);
  return RUN_ALL_TESTS();
}
