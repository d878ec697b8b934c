#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include "app/Announcements.h"

namespace blunko {

/// The voice of the table: what it says reaches a screen reader wherever the focus is. Nothing of it is seen.
class Announcer : public QWidget {
  Q_OBJECT

 public:
  explicit Announcer(QWidget* Table);

  /// Says it when its turn in the queue has come.
  void Tell(const SpokenLine& Line);
  /// Says at once what a key has done in another window.
  void Answer(const QString& Text, bool Interrupts = false);

 private:
  void TellNext();

  AnnouncementQueue queue;
  QElapsedTimer clock;
  QTimer next;
};

}  // namespace blunko
