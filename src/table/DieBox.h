#pragma once

#include <QWidget>

#include "widgets/Pictures.h"

namespace blunko {

/// One box of the dice array: shows the die's bitmap in its top left corner and reports clicks.
class DieBox : public QWidget {
  Q_OBJECT

 public:
  DieBox(int Index, Bitmaps& Pictures, QWidget* Parent);

  /// Number of the bitmap, 0 for an empty box.
  void setPicture(int Number);
  int Picture() const { return picture; }
  void setBackColor(const QColor& Colour);
  QColor BackColor() const { return backColor; }

 signals:
  /// `Button`: 1 left, 2 right, 4 middle.
  void mouseUp(int Index, int Button);

 protected:
  void paintEvent(QPaintEvent* Event) override;
  void mousePressEvent(QMouseEvent* Event) override;
  void mouseReleaseEvent(QMouseEvent* Event) override;

 private:
  int index;
  Bitmaps& bitmaps;
  int picture = 0;
  QColor backColor;
};

/// A row of die boxes: flat, with a thin border. Clicks beside the dice are its own.
class DiceTray : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  void setBackColor(const QColor& Colour);
  QColor BackColor() const { return backColor; }

 signals:
  void mouseUp(int Button);

 protected:
  void paintEvent(QPaintEvent* Event) override;
  void mousePressEvent(QMouseEvent* Event) override;
  void mouseReleaseEvent(QMouseEvent* Event) override;

 private:
  QColor backColor;
};

}  // namespace blunko
