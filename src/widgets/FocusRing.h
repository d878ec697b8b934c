#pragma once

#include <QRectF>

class QPainter;

namespace blunko {

/// Width of the frame of whatever the keyboard acts on, in px.
inline constexpr int FocusRingWidth = 4;

/// Draws that frame just within `Outer`: a light line inside a dark one, so that one of the two stands out from
/// whatever it lies on.
void DrawFocusRing(QPainter& Painter, const QRectF& Outer, qreal Radius);

/// From now on such a frame lies around the toolkit's own lists, boxes and fields, too, while they have the focus.
void RingStandardControls();

}  // namespace blunko
