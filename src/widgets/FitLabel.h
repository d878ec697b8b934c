#pragma once

#include <QLabel>

namespace blunko {

class StretchedPicture;

/// A label on a picture: no background, and its text shrinks and narrows rather than being cut.
class FitLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  /// What it lies on; without one, its palette's ground.
  void setPicture(StretchedPicture* Picture) { ground = Picture; }
  /// Larger letters in a colour that cries out, for a moment.
  void setLoud(bool Loud);

 protected:
  void paintEvent(QPaintEvent* Event) override;

 private:
  StretchedPicture* ground = nullptr;
  bool loud = false;
};

}  // namespace blunko
