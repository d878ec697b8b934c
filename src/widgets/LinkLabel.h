#pragma once

#include <QPushButton>

namespace blunko {

/// A label that acts as a link: underlined, in the palette's link colour, with the hand cursor. Space and Enter follow
/// it as a click does.
class LinkLabel : public QPushButton {
  Q_OBJECT

 public:
  explicit LinkLabel(const QString& Caption, QWidget* Parent = nullptr);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* Event) override;
};

}  // namespace blunko
