#pragma once

#include <QPushButton>

namespace blunko {

class StretchedPicture;

/// A button that is nothing but its words on a picture, like the table's labels: tinted under the mouse, with room for
/// the focus around the letters.
class WordButton : public QPushButton {
  Q_OBJECT

 public:
  explicit WordButton(const QString& Caption, QWidget* Parent = nullptr);

  /// What it lies on; without one, its palette's ground.
  void setPicture(StretchedPicture* Picture) { ground = Picture; }

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* Event) override;

 private:
  StretchedPicture* ground = nullptr;
};

}  // namespace blunko
