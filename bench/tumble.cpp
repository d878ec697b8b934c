// A step of the tumble of six dice, from the face drawn to the painted die, on the offscreen platform: tumble

#include <QApplication>

#include <benchmark/benchmark.h>

#include "bench/Quiet.h"
#include "table/frmMain.h"
#include "util/UtilRandom.h"

namespace {

using namespace blunko;

constexpr int DieColour = 112;

void TumbleStep(benchmark::State& Run) {
  Module1 State;
  TableControls Controls;
  GameOptions Options;
  QuietDesktop Screen;
  QuietProgram Others;
  FairDice Numbers;
  Game Table(State, Controls, Options, Screen, Others, Numbers);
  frmMain Form(Table);
  Form.Wears.Background = QCoreApplication::applicationDirPath() + QStringLiteral("/../Background/Satin.jpg");
  Form.show();
  QCoreApplication::processEvents();  // the window comes up
  Controls.Rolling = true;
  int Die = 0;
  const auto Step = [&] {
    Controls.Picture1(Die) = DieColour + Numbers.UtilRandom(6);
    Form.ShowControls();
    Die = (Die + 1) % Dice;
  };
  for (int i = 0; i < 10 * Dice; ++i) Step();  // the faces' pictures are drawn once
  for (auto _ : Run) Step();
}
BENCHMARK(TumbleStep)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
