#pragma once

#include <QPoint>

class QPixmap;

namespace blunko {

class frmMain;

/// The strip at the left of the table in which the options panel comes to light. The table keeps its place on the
/// screen. `Picture`: what will be seen in the strip.
void OpenStrip(frmMain& Form, const QPixmap& Picture);
void CloseStrip(frmMain& Form);
/// The table's part of the window, frame included, in screen coordinates.
QPoint TableCorner(const frmMain& Form);
/// Moves the window to the middle of its screen.
void CentreOnScreen(frmMain& Form);

}  // namespace blunko
