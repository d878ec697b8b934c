#pragma once

#include <QWidget>

namespace blunko {

/// The voice of the table: what it says reaches a screen reader at once, wherever the focus is. Nothing of it is seen.
class Announcer : public QWidget {
  Q_OBJECT

 public:
  explicit Announcer(QWidget* Table);

  /// Whether anybody listens.
  static bool IsHeard();
  void Say(const QString& Text);
};

}  // namespace blunko
