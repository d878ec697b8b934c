#include "tests/app/Run.h"

namespace {

/// A program that has quit in one test doesn't keep the dialogs of the next from waiting.
class FreshEventLoop : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override { blunko::test::BeginLoops(); }
};

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);  // as the game does
  testing::UnitTest::GetInstance()->listeners().Append(new FreshEventLoop);
  return RUN_ALL_TESTS();
}
