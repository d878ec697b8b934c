// The game's start up to the first painted table, for start_up: table_window STATE_FOLDER. With a second argument, for
// instructions, it stays.

#include <QApplication>
#include <QFileInfo>

#include <optional>

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
  Where.Program = QFileInfo(Where.Program).path();  // the shipped files lie beside the game
  if (argc > 1) Where.State = QString::fromLocal8Bit(argv[1]);
  const blunko::IniInfo Info(Where.InfoPath());
  blunko::Application Program(Where, Info, std::make_unique<NeverOne>());
  if (!Program.Main()) return 1;
  std::optional<FirstPaint> Watch;
  if (argc < 3) Watch.emplace(*Program.Form->picGameTray);
  return QApplication::exec();
}
