#pragma once

#include <QColor>
#include <QPushButton>

namespace blunko {

/// The button of all forms: a rounded face in its back colour, with a look of its own for hover, press, focus and
/// disabled. Its caption shrinks rather than being cut.
class ButtonPlus : public QPushButton {
  Q_OBJECT

 public:
  explicit ButtonPlus(const QString& Caption, QWidget* Parent = nullptr);

  QColor BackColor() const { return backColor; }
  void setBackColor(const QColor& Colour);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* Event) override;
  void enterEvent(QEnterEvent* Event) override;
  void leaveEvent(QEvent* Event) override;

 private:
  QColor backColor;
};

/// Gives every button of the form the system's button-face colour: no desktop here has the one theme under which the
/// forms' own colours stand.
void FixButtonColours(QWidget& Form);

}  // namespace blunko
