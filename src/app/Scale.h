#pragma once

#include <QSize>

namespace blunko {

/// How many times larger the windows are drawn: as wanted, in per cent, but none becomes larger than a screen of this
/// size in logical pixels, nor smaller than it is.
double FittingScale(int PerCent, const QSize& Screen);

/// Has the toolkit draw everything larger. To be called before its start; 100 per cent leaves it alone.
void ScaleWindows(int PerCent, int argc, char** argv);

}  // namespace blunko
