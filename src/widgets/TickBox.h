#pragma once

#include <QCheckBox>

namespace blunko {

/// A bare check box whose tick is drawn as a path, so that it looks like one whatever fonts are installed. A click or
/// the space bar toggles it. Its caption, if any, stands in a label of its own: give it an accessible name.
class TickBox : public QCheckBox {
  Q_OBJECT

 public:
  explicit TickBox(QWidget* Parent = nullptr);

  QSize sizeHint() const override;

 protected:
  bool hitButton(const QPoint& Position) const override { return rect().contains(Position); }
  void paintEvent(QPaintEvent* Event) override;
};

/// Draws a tick in the middle of the place, as tall as the place allows.
void DrawTick(QPainter& Painter, const QRectF& Place, const QColor& Colour);

}  // namespace blunko
