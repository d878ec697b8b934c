#pragma once

#include <QColor>

namespace blunko {

/// The blue ground of the score pad and of the dialogs that celebrate.
inline const QColor FormBlue(2, 127, 255);

/// The face of a button that has no colour of its own.
inline const QColor ButtonBlue(159, 202, 255);

/// How light a colour is: 0 for black to 1 for white, as contrasts are reckoned.
double Luminance(const QColor& Colour);

/// The part of black to white, 0 to 1, that a grey of the luminance has on the screen.
double ShadeOf(double Luminance);

/// Black or white, whichever stands out better from the colour.
QColor BestGround(const QColor& Ink);

}  // namespace blunko
