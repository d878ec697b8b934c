#pragma once

#include <QWidget>

#include <array>

namespace blunko {

/// The voice of the table: what it says reaches a screen reader at once, wherever the focus is. Nothing of it is seen.
class Announcer : public QWidget {
  Q_OBJECT

 public:
  explicit Announcer(QWidget* Table);

  /// Whether anybody listens.
  static bool IsHeard();
  void Say(const QString& Text);

 private:
  /// A reader asks for the words some time after it has heard that there are some: each text stands for a while.
  std::array<QWidget*, 8> notes{};
  std::size_t said = 0;
};

}  // namespace blunko
