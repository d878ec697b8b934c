#pragma once

#include <QMargins>

#include <optional>
#include <set>

class QImage;
class QWidget;

namespace blunko {

/// What only an X server and its window manager can be asked for. On other platforms nothing happens.

/// The frame that the window manager will put round a window that isn't shown yet; nothing when it doesn't say.
std::optional<QMargins> FrameToCome(QWidget& Window);

/// From now on a key that is held down is let go once, at its end, not with every repeat; and the repeats of its press
/// aren't told apart from it. False where that can't be had, nor is needed.
bool HearKeysReleasedOnce();

/// The keys that are down, whoever hears them, by the numbers of their places; nothing when nobody can tell.
std::optional<std::set<quint32>> KeysDown();

/// Prepares a window that will change its width at its left edge: what it shows stays at the right edge, and what comes
/// to light shows `Whole`, the window in its new size, before the program has painted anything. Other programs stand
/// still until AwaitSize.
void HoldRightEdge(QWidget& Window, const QImage& Whole);

/// Waits until the window so prepared has got the size that it has asked for.
void AwaitSize(const QWidget& Window);

}  // namespace blunko
