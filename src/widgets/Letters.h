#pragma once

#include <QString>

class QColor;
class QFont;
class QPainter;
class QRectF;

namespace blunko {

/// Draws a line of text within `Room` on a ground that shows through; edges need no room of their own. It shrinks and
/// narrows rather than being cut. Where the ground is too much like the letters they get a shadow, or a soft light, of
/// as much strength as a contrast of 4.5:1 needs; on most grounds none. `Ground`: what they stand out from least.
void DrawLetters(QPainter& Painter, const QRectF& Room, Qt::Alignment Side, const QString& Text, const QFont& Font,
                 const QColor& Ink, const QColor& Ground);

}  // namespace blunko
