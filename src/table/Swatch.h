#pragma once

#include <QAbstractButton>
#include <QColor>

namespace blunko {

/// One colour of a choice: a bordered field of the colour, with a tick when it is the chosen one.
class Swatch : public QAbstractButton {
  Q_OBJECT

 public:
  explicit Swatch(const QColor& Colour, QWidget* Parent = nullptr);

  QSize sizeHint() const override { return {24, 22}; }

 protected:
  void paintEvent(QPaintEvent* Event) override;

 private:
  QColor colour;
};

}  // namespace blunko
