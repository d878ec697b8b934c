#include "widgets/PlacedDialog.h"

#include <QLayout>
#include <QScreen>
#include <QWheelEvent>

#include <algorithm>

#include "widgets/X11.h"

namespace blunko {

QMargins FrameOf(QWidget& Window) {
  if (const auto Known = FrameToCome(Window)) return *Known;
  if (!Window.isVisible()) {
    QWidget* const Owner = Window.parentWidget();
    return Owner == nullptr || !Owner->window()->isVisible() ? QMargins() : FrameOf(*Owner->window());
  }
  const QRect Frame = Window.frameGeometry(), Inside = Window.geometry();
  return {Inside.left() - Frame.left(), Inside.top() - Frame.top(), Frame.right() - Inside.right(),
          Frame.bottom() - Inside.bottom()};
}

// Under X11 the place of the inside is set: how a corner is meant, the window manager was told when the window was
// made.
void PlaceFrame(QWidget& Window, QPoint Corner) {
  if (const auto Frame = FrameToCome(Window)) {
    Window.setGeometry(QRect(Corner + QPoint(Frame->left(), Frame->top()), Window.size()));
  } else {
    Window.move(Corner);
  }
}

void CentreFrame(QWidget& Window, const QRect& Place) {
  QRect Frame(QPoint(), Window.size().grownBy(FrameOf(Window)));
  Frame.moveCenter(Place.center());
  const QRect Screen = Window.screen()->availableGeometry();
  Frame.moveRight(qMin(Frame.right(), Screen.right()));
  Frame.moveBottom(qMin(Frame.bottom(), Screen.bottom()));
  PlaceFrame(Window, QPoint(qMax(Frame.left(), Screen.left()), qMax(Frame.top(), Screen.top())));
}

void ShiftOnLowScreen(QWidget& Window, int Down) {
  const QRect Screen = Window.screen()->availableGeometry(), Frame = Window.frameGeometry();
  if (Frame.height() <= Screen.height()) return;
  Window.move(Window.x(), std::clamp(Frame.top() + Down, Screen.bottom() + 1 - Frame.height(), Screen.top()));
}

void ShowFocusOnLowScreen(QWidget& Window) {
  constexpr int Margin = 12;  // px
  const QWidget* const Focus = Window.focusWidget();
  if (Focus == nullptr) return;
  const QRect Screen = Window.screen()->availableGeometry(),
              Seen(Focus->mapToGlobal(QPoint(-Margin, -Margin)), Focus->size() + 2 * QSize(Margin, Margin));
  if (Seen.bottom() > Screen.bottom()) ShiftOnLowScreen(Window, Screen.bottom() - Seen.bottom());
  if (Seen.top() < Screen.top()) ShiftOnLowScreen(Window, Screen.top() - Seen.top());
}

void PlacedDialog::setVisible(bool Visible) {
  if (Visible && !isVisible()) {
    ensurePolished();
    if (layout() != nullptr) layout()->activate();
    if (!testAttribute(Qt::WA_Resized)) adjustSize();
    Place();
  }
  QDialog::setVisible(Visible);
}

void PlacedDialog::Place() {
  if (parentWidget() == nullptr) return CentreFrame(*this, screen()->availableGeometry());
  QWidget& Owner = *parentWidget()->window();  // one that has only just come up doesn't know its frame yet
  CentreFrame(*this, Owner.geometry() + FrameOf(Owner));
}

bool PlacedDialog::focusNextPrevChild(bool Next) {
  const bool Moved = QDialog::focusNextPrevChild(Next);
  ShowFocusOnLowScreen(*this);
  return Moved;
}

void PlacedDialog::wheelEvent(QWheelEvent* Event) { ShiftOnLowScreen(*this, Event->angleDelta().y() / 2); }

}  // namespace blunko
