#include "widgets/PlacedDialog.h"

#include <QGuiApplication>
#include <QLayout>
#include <QPainter>
#include <QScreen>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>

#include "widgets/ButtonPlus.h"
#include "widgets/X11.h"

namespace blunko {

bool PlacesWindows() { return !QGuiApplication::platformName().startsWith(QLatin1String("wayland")); }

QMargins FrameOf(const QWidget& Window) {
  if (Window.windowType() == Qt::ToolTip) return {};
  if (Window.isVisible()) {  // a hidden window's is told as none by openbox
    if (const auto Told = FrameTold(Window)) return *Told;
    if (QGuiApplication::platformName() != QLatin1String("xcb")) return Window.windowHandle()->frameMargins();
  }
  return Window.parentWidget() == nullptr ? FrameToCome(Window) : FrameOf(*Window.parentWidget()->window());
}

QRect FramePlace(const QWidget& Window) { return Window.geometry() + FrameOf(Window); }

void PlaceFrame(QWidget& Window, QPoint Corner) {
  const QMargins Frame = FrameOf(Window);
  Window.setGeometry(QRect(Corner + QPoint(Frame.left(), Frame.top()), Window.size()));
}

void CentreFrame(QWidget& Window, const QRect& Place) {
  QRect Frame(QPoint(), Window.size().grownBy(FrameOf(Window)));
  Frame.moveCenter(Place.center());
  const QScreen* const There = QGuiApplication::screenAt(Place.center());
  const QRect Screen = (There == nullptr ? Window.screen() : There)->availableGeometry();
  Frame.moveRight(qMin(Frame.right(), Screen.right()));
  Frame.moveBottom(qMin(Frame.bottom(), Screen.bottom()));
  PlaceFrame(Window, QPoint(qMax(Frame.left(), Screen.left()), qMax(Frame.top(), Screen.top())));
}

void ShiftOnLowScreen(QWidget& Window, int Down) {
  const QRect Screen = Window.screen()->availableGeometry(), Frame = FramePlace(Window);
  if (Frame.height() <= Screen.height()) return;
  const int Top = std::clamp(Frame.top() + Down, Screen.bottom() + 1 - Frame.height(), Screen.top());
  PlaceFrame(Window, {Frame.left(), Top});
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

PlacedDialog::PlacedDialog(QWidget* Owner, const QString& Name, const QString& Title, Cloth Satin,
                           Qt::WindowFlags Flags)
    : QDialog(Owner, Flags), lining(Satin) {
  setObjectName(Name);
  setWindowTitle(Title);
  if (lining != Cloth::Pearl) setPalette(PaletteOn(lining));
}

void PlacedDialog::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  DrawLining(Painter, rect(), lining);
  for (const QWidget* Part : framed) DrawFrame(Painter, Part->geometry());
}

void PlacedDialog::setVisible(bool Visible) {
  const bool HasFocus = isActiveWindow();
  if (Visible && !isVisible()) {
    if (lining == Cloth::Pearl && styleSheet().isEmpty()) setStyleSheet(PaperStyle());
    ensurePolished();
    FixButtonColours(*this);
    if (layout() != nullptr) layout()->activate();
    if (!testAttribute(Qt::WA_Resized)) adjustSize();
    Place();
  }
  QDialog::setVisible(Visible);
  // Marco would give it to another window of the program.
  if (!Visible && HasFocus && parentWidget() != nullptr) parentWidget()->window()->activateWindow();
}

void PlacedDialog::Place() {
  CentreFrame(*this, parentWidget() == nullptr ? screen()->availableGeometry() : FramePlace(*parentWidget()->window()));
}

/// KWin and openbox have a button for it, whatever is asked for, and would take the owner along.
void PlacedDialog::changeEvent(QEvent* Event) {
  QDialog::changeEvent(Event);
  if (Event->type() == QEvent::WindowStateChange && isMinimized()) showNormal();
}

bool PlacedDialog::focusNextPrevChild(bool Next) {
  const bool Moved = QDialog::focusNextPrevChild(Next);
  ShowFocusOnLowScreen(*this);
  return Moved;
}

void PlacedDialog::wheelEvent(QWheelEvent* Event) { ShiftOnLowScreen(*this, Event->angleDelta().y() / 2); }

}  // namespace blunko
