#pragma once

#include <QColor>

namespace blunko {

/// The blue ground of the score pad and of the dialogs that celebrate.
inline const QColor FormBlue(2, 127, 255);

/// Frame of whatever the keyboard acts on.
inline const QColor FocusColour(255, 178, 36);

}  // namespace blunko
