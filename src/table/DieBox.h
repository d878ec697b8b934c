#pragma once

#include <QAbstractButton>

#include "widgets/Pictures.h"

namespace blunko {

/// One box of the dice array: shows the die's bitmap in its top left corner, on the tray's felt, and reports clicks. A
/// press from the keyboard is a left click. An empty box is hidden: a click there is one beside the dice.
class DieBox : public QAbstractButton {
  Q_OBJECT

 public:
  DieBox(int Index, Bitmaps& Pictures, QWidget* Parent);

  /// Number of the bitmap, 0 for an empty box.
  void setPicture(int Number);
  int Picture() const { return picture; }
  /// Whether a left click takes the die, or takes it back: then hand and ring show it under the mouse.
  void setTakeable(bool Takeable);
  bool IsTakeable() const { return takeable; }
  /// A die that is lost is pale.
  void setPale(bool Pale);
  /// On the felt, in the coordinates of the tray.
  void DrawShadow(QPainter& Painter) const;

 signals:
  /// `Button`: 1 left, 2 right, 4 middle, as the toolkit numbers them; any other one is the game's to read.
  void mouseUp(int Index, int Button);

 protected:
  void paintEvent(QPaintEvent* Event) override;
  void mousePressEvent(QMouseEvent* Event) override;
  void mouseReleaseEvent(QMouseEvent* Event) override;
  void keyPressEvent(QKeyEvent* Event) override;

 private:
  int index;
  Bitmaps& bitmaps;
  int picture = 0;
  bool takeable = false, pale = false;
};

/// A row of die boxes on felt. Clicks beside the dice are its own.
class DiceTray : public QWidget {
  Q_OBJECT

 public:
  /// `Sunk`: how far it lies below the felt's upper edge, in px.
  DiceTray(int Sunk, QWidget* Parent) : QWidget(Parent), sunk(Sunk) {}

  void setBackColor(const QColor& Colour);

 signals:
  void mouseUp(int Button);

 protected:
  void paintEvent(QPaintEvent* Event) override;
  void mousePressEvent(QMouseEvent* Event) override;
  void mouseReleaseEvent(QMouseEvent* Event) override;

 private:
  int sunk;
  QColor backColor;
};

}  // namespace blunko
