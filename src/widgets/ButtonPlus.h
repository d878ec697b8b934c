#pragma once

#include <QColor>
#include <QPushButton>

namespace blunko {

/// The button of all forms: a navy body with a hint of its back colour, and a look of its own for hover, press, focus
/// and disabled; these differ in shape and light, not in colour alone. Its caption shrinks rather than being cut.
class ButtonPlus : public QPushButton {
  Q_OBJECT

 public:
  explicit ButtonPlus(const QString& Caption, QWidget* Parent = nullptr);

  void setBackColor(const QColor& Colour);
  /// One of the few that a window is there for.
  void setHero();

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* Event) override;
  void keyPressEvent(QKeyEvent* Event) override;

 private:
  QColor body;
  bool hero = false;
};

}  // namespace blunko
