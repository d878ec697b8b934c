#pragma once

#include <QLabel>

#include "widgets/HaloText.h"

namespace blunko {

/// A label on a picture: no background, and its text shrinks and narrows rather than being cut. Its colour is
/// its own.
class FitLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  void setForeColor(const QColor& Colour);
  QColor ForeColor() const { return foreColor; }
  /// Larger letters in a colour that cries out, for a moment.
  void setLoud(bool Loud);

 protected:
  void paintEvent(QPaintEvent* Event) override;

 private:
  QColor foreColor = Qt::black;
  bool loud = false;
  HaloText words;
};

}  // namespace blunko
