#include "widgets/HeldKeys.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QWindow>

#include <chrono>
#include <utility>

#include "widgets/X11.h"

namespace blunko {

constexpr std::chrono::milliseconds LookEvery{40};

HeldKeys::HeldKeys(bool RepeatsAreMarked) : marked(RepeatsAreMarked) {
  qGuiApp->installEventFilter(this);
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this] { BecomeStale(); });
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState State) {
    // What another program has seen pressed is no command here.
    if (State == Qt::ApplicationActive) stale.merge(KeysDown().value_or(std::set<quint32>()));
    Look();
  });
  connect(&again, &QTimer::timeout, this, &HeldKeys::Look);
}

quint32 HeldKeys::PlaceOf(const QKeyEvent& Key) {
  constexpr quint32 ByItsName = 1U << 31;
  return Key.nativeScanCode() != 0 ? Key.nativeScanCode() : ByItsName | static_cast<quint32>(Key.key());
}

void HeldKeys::BecomeStale() {
  lastDown.insert(pressed.begin(), pressed.end());
  stale.merge(pressed);
  pressed.clear();
  Look();
}

/// A key that is let go between two windows is let go unseen. When it is up its last repeats may still be on their way:
/// they have come by the next look.
void HeldKeys::Look() {
  auto Down = KeysDown();
  if (!Down) return;
  std::erase_if(stale, [&](quint32 Key) { return !Down->contains(Key) && !lastDown.contains(Key); });
  lastDown = *std::move(Down);
  stale.empty() ? again.stop() : again.start(LookEvery);
}

bool HeldKeys::eventFilter(QObject* Receiver, QEvent* Event) {
  const bool IsOffer = Event->type() == QEvent::ShortcutOverride, IsRelease = Event->type() == QEvent::KeyRelease;
  if (!Receiver->isWindowType() || (!IsOffer && !IsRelease && Event->type() != QEvent::KeyPress)) return false;
  // The toolkit's way to screen readers takes a key and sends a copy of it later: the key itself counts, before that.
  if (IsOffer) qGuiApp->installEventFilter(this);
  if (!Event->spontaneous()) return false;
  auto& Key = static_cast<QKeyEvent&>(*Event);
  const quint32 Place = PlaceOf(Key);
  if (IsRelease) {
    if (Key.isAutoRepeat()) return !pressed.contains(Place);
    stale.erase(Place);
    return pressed.erase(Place) == 0;
  }
  if (marked && !Key.isAutoRepeat()) stale.erase(Place), pressed.erase(Place);
  if (stale.contains(Place) || (Key.isAutoRepeat() && !pressed.contains(Place))) {
    Key.accept();  // nor is it a shortcut
    return true;
  }
  const bool IsNew = pressed.insert(Place).second;
  if (IsOffer) {
    offered = IsNew ? std::optional(Key.timestamp()) : std::nullopt;
    return false;
  }
  if (IsNew || std::exchange(offered, {}) == Key.timestamp() || Key.isAutoRepeat()) return false;
  QKeyEvent Repeat(QEvent::KeyPress, Key.key(), Key.modifiers(), Key.nativeScanCode(), Key.nativeVirtualKey(),
                   Key.nativeModifiers(), Key.text(), true, static_cast<ushort>(Key.count()));
  return QCoreApplication::sendEvent(Receiver, &Repeat);
}

}  // namespace blunko
