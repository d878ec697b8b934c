#pragma once

#include <QRect>

#include <optional>
#include <set>

class QImage;
class QWidget;

namespace blunko {

/// What only an X server and its window manager can be asked for. On other platforms nothing happens.

/// The frame of a window that is shown: now, while the toolkit may still tell what it was before the manager had done
/// with it. Without a property, as on i3, the toolkit's.
QMargins FrameTold(const QWidget& Window);

/// Whether a window manager offers the focus by this event of the toolkit's, to a window that doesn't take it by
/// itself.
bool OffersFocus(const void* NativeEvent);

/// From now on a key that is held down is let go once, at its end, not with every repeat; and the repeats of its press
/// aren't told apart from it. False where that can't be had, nor is needed.
bool HearKeysReleasedOnce();

/// The keys that are down, whoever hears them, by the numbers of their places; nothing when nobody can tell.
std::optional<std::set<quint32>> KeysDown();

/// Prepares a window that will change its width at its left edge: what it shows stays at the right edge, and what comes
/// to light shows `Whole`, the window in its new size, before the program has painted anything. Other programs stand
/// still until AwaitPlace.
void HoldRightEdge(QWidget& Window, const QImage& Whole);

/// The window's inside on the screen, in the screen's own pixels: a scale of 1.5 has no half ones.
QRect PlaceOnServer(const QWidget& Window);

/// Moves the window so prepared, and waits until it has got the size.
void AwaitPlace(const QWidget& Window, const QRect& Wanted);

}  // namespace blunko
