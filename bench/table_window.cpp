// The game's start up to the first painted table, for start_up: table_window STATE_FOLDER

#include <QApplication>

#include "app/Application.h"
#include "bench/FirstPaint.h"

namespace {

/// The start-up question about a new version isn't drawn.
struct NeverOne : blunko::NumberSource {
  std::int32_t UtilRandom(std::int32_t Bound) override { return Bound; }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication app(argc, argv);
  blunko::Folders Where = blunko::Folders::OfProgram();
  if (argc > 1) Where.State = QString::fromLocal8Bit(argv[1]);
  blunko::Application Program(Where, std::make_unique<NeverOne>());
  if (!Program.Main()) return 1;
  const FirstPaint Watch(*Program.Form->picGameTray);
  return QApplication::exec();
}
