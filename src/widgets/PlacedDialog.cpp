#include "widgets/PlacedDialog.h"

#include <QLayout>
#include <QScreen>

#include "widgets/X11.h"

namespace blunko {

QMargins FrameOf(QWidget& Window) {
  if (!Window.isVisible()) {
    if (const auto Known = FrameToCome(Window)) return *Known;
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
  const QWidget* const Owner = parentWidget();
  CentreFrame(*this, Owner == nullptr ? screen()->availableGeometry() : Owner->window()->frameGeometry());
}

}  // namespace blunko
