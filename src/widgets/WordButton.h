#pragma once

#include <QPushButton>

#include "widgets/HaloText.h"

namespace blunko {

/// A button that is nothing but its words on a picture, like the table's labels: tinted under the mouse, with room for
/// the focus around the letters.
class WordButton : public QPushButton {
  Q_OBJECT

 public:
  explicit WordButton(const QString& Caption, QWidget* Parent = nullptr);

  void setForeColor(const QColor& Colour);
  /// Without a halo, for words on a plain ground.
  void setPlain() { plain = true; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* Event) override;

 private:
  QColor foreColor = Qt::black;
  bool plain = false;
  HaloText words;
};

}  // namespace blunko
