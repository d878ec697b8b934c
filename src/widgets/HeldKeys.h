#pragma once

#include <QObject>
#include <QTimer>

#include <optional>
#include <set>

class QKeyEvent;

namespace blunko {

/// Which keys are down in all windows of the program, by their places on the board. A press belongs to the window in
/// which it was made: repeats and release of a key that is held while another one becomes active reach nobody. In its
/// own window a repeat is marked as one, also where the system doesn't.
class HeldKeys : public QObject {
 public:
  /// Filters the application's events from now on. `RepeatsAreMarked`: by the system; a press that isn't, is a new one.
  explicit HeldKeys(bool RepeatsAreMarked);

  bool eventFilter(QObject* Receiver, QEvent* Event) override;

  /// The key's place on the board; where that isn't known, what it says.
  static quint32 PlaceOf(const QKeyEvent& Key);

 private:
  void BecomeStale();
  void Look();

  const bool marked;
  std::set<quint32> pressed;   ///< in the window that is active
  std::set<quint32> stale;     ///< since before it became active
  std::set<quint32> lastDown;  ///< at the last look at those
  QTimer again;                ///< for the next one, as long as there are any
  /// Time of a press that has been offered as a shortcut: it may come once more, as itself.
  std::optional<quint64> offered;
};

}  // namespace blunko
