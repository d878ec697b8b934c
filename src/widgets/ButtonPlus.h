#pragma once

#include <QColor>
#include <QPushButton>

namespace blunko {

/// The button of all forms: a rounded face in its back colour, with a look of its own for hover, press, focus and
/// disabled; these differ in shape and light, not in colour alone. Its caption shrinks rather than being cut.
class ButtonPlus : public QPushButton {
  Q_OBJECT

 public:
  explicit ButtonPlus(const QString& Caption, QWidget* Parent = nullptr);

  void setBackColor(const QColor& Colour);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* Event) override;
  void keyPressEvent(QKeyEvent* Event) override;

 private:
  void DrawFace(QPainter& Painter, const QRectF& Face) const;

  QColor backColor;
};

/// Buttons keep their own colours on a desktop with a theme, as long as it is a light one; else every button of the
/// form gets the system's button-face colour.
void FixButtonColours(QWidget& Form);

}  // namespace blunko
