#include "app/Scale.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <vector>

namespace blunko {

/// The table in its frame, with the options beside it.
constexpr QSize LargestWindow(530, 560);  // logical pixels

double FittingScale(int PerCent, const QSize& Screen) {
  const double Fitting =
      std::min(double(Screen.width()) / LargestWindow.width(), double(Screen.height()) / LargestWindow.height());
  return std::max(1., std::min(PerCent / 100., Fitting));
}

void ScaleWindows(int PerCent, int argc, char** argv) {
  if (PerCent == 100) return;
  qunsetenv("QT_SCALE_FACTOR");
  std::vector<char*> Arguments(argv, argv + argc + 1);  // the toolkit strikes out its own
  const QGuiApplication Probe(argc, Arguments.data());
  const double Scale = FittingScale(PerCent, QGuiApplication::primaryScreen()->availableSize());
  qputenv("QT_SCALE_FACTOR", QByteArray::number(Scale));
}

}  // namespace blunko
