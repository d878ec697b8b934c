#pragma once

#include <QLabel>

namespace blunko {

class StretchedPicture;

/// A label on a picture: no background, and its text shrinks and narrows rather than being cut. Its colour is
/// its own.
class FitLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  void setForeColor(const QColor& Colour);
  QColor ForeColor() const { return foreColor; }
  /// What it lies on; without one, its palette's ground.
  void setPicture(StretchedPicture* Picture) { ground = Picture; }
  /// Larger letters in a colour that cries out, for a moment.
  void setLoud(bool Loud);

 protected:
  void paintEvent(QPaintEvent* Event) override;

 private:
  QColor foreColor = Qt::black;
  StretchedPicture* ground = nullptr;
  bool loud = false;
};

}  // namespace blunko
