#include "widgets/PlacedDialog.h"

#include <QGuiApplication>
#include <QLayout>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <chrono>

#include "widgets/X11.h"

namespace blunko {

namespace {

void Put(QWidget& Window, QPoint Corner) {
  if (!Window.testAttribute(Qt::WA_WState_Created)) return Window.move(Corner);  // the manager will add the frame
  const QMargins Frame = FrameOf(Window);
  Window.setGeometry(QRect(Corner + QPoint(Frame.left(), Frame.top()), Window.size()));
}

/// Puts a window, and again while it comes up: only then its frame is known, and awesome, and i3 with a window that
/// comes up again, choose the place themselves at first.
template <typename Putting>
void PutAndRemind(QWidget& Window, Putting Run) {
  constexpr QLatin1String Name("reminder");
  constexpr std::chrono::milliseconds LookEvery{40}, Settling{500};  // later it is the player's
  delete Window.findChild<QTimer*>(Name, Qt::FindDirectChildrenOnly);
  Run();
  auto* Again = new QTimer(&Window);
  Again->setObjectName(Name);
  Again->callOnTimeout([&Window, Run, Size = Window.size()] {
    if (Window.size() == Size && Window.isVisible() && !Window.isMinimized()) Run();
  });
  Again->start(LookEvery);
  QTimer::singleShot(Settling, Again, &QObject::deleteLater);
}

}  // namespace

bool PlacesWindows() { return !QGuiApplication::platformName().startsWith(QLatin1String("wayland")); }

QMargins FrameOf(const QWidget& Window) {
  if (Window.windowType() == Qt::ToolTip) return {};
  if (Window.isVisible()) return FrameTold(Window);  // openbox tells a hidden window's as none
  return Window.parentWidget() == nullptr ? QMargins() : FrameOf(*Window.parentWidget()->window());
}

QRect FramePlace(const QWidget& Window) { return Window.geometry() + FrameOf(Window); }

void FixSize(QWidget& Window, QSize Size) {
  Window.setBaseSize(Size);
  Window.setFixedSize(Size);
}

void LetGrow(QWindow& Window) {
  QObject::disconnect(&Window, &QWindow::windowStateChanged, &Window, nullptr);  // one that was closed is told again
  const auto AtNextWidth = [&Window](auto Run) {
    QObject::connect(&Window, &QWindow::widthChanged, &Window, Run, Qt::SingleShotConnection);
  };
  QObject::connect(&Window, &QWindow::windowStateChanged, &Window, [=, &Window](Qt::WindowState Now) {
    const QSize Fixed = Window.maximumSize();
    if (Now != Qt::WindowMaximized || Fixed != Window.minimumSize()) return;
    Window.setMaximumSize({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX});
    AtNextWidth([=, &Window] {
      AtNextWidth([=, &Window] { Window.setMaximumSize(Fixed); });
      QTimer::singleShot(0, &Window, [&Window] { Window.setWindowStates(Qt::WindowNoState); });
    });
  });
}

void PlaceFrame(QWidget& Window, QPoint Corner) {
  PutAndRemind(Window, [&Window, Corner] { Put(Window, Corner); });
}

void PlaceInside(QWidget& Window, QPoint Corner) {
  PutAndRemind(Window, [&Window, Corner] { Window.setGeometry(QRect(Corner, Window.size())); });
}

void CentreFrame(QWidget& Window, const QWidget* Owner) {
  PutAndRemind(Window, [&Window, Owner] {
    QRect Frame(QPoint(), Window.size().grownBy(FrameOf(Window)));
    const QScreen& There = *(Owner == nullptr ? &Window : Owner)->screen();
    Frame.moveCenter((Owner == nullptr ? There.geometry() : FramePlace(*Owner)).center());
    const QRect Screen = There.availableGeometry();
    Frame.moveRight(qMin(Frame.right(), Screen.right()));
    Frame.moveBottom(qMin(Frame.bottom(), Screen.bottom()));
    Put(Window, QPoint(qMax(Frame.left(), Screen.left()), qMax(Frame.top(), Screen.top())));
  });
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
  if (Visible && !isVisible()) {
    if (lining == Cloth::Pearl && styleSheet().isEmpty()) setStyleSheet(PaperStyle());
    ensurePolished();
    if (layout() != nullptr) layout()->activate();
    if (!testAttribute(Qt::WA_Resized)) adjustSize();
    Place();
  }
  QDialog::setVisible(Visible);
}

void PlacedDialog::Place() { CentreFrame(*this, parentWidget() == nullptr ? nullptr : parentWidget()->window()); }

/// KWin and openbox have a button for it, whatever is asked for, and would take the owner along.
void PlacedDialog::changeEvent(QEvent* Event) {
  QDialog::changeEvent(Event);
  if (Event->type() == QEvent::WindowStateChange && isMinimized()) showNormal(), activateWindow();
}

bool PlacedDialog::focusNextPrevChild(bool Next) {
  const bool Moved = QDialog::focusNextPrevChild(Next);
  ShowFocusOnLowScreen(*this);
  return Moved;
}

void PlacedDialog::wheelEvent(QWheelEvent* Event) { ShiftOnLowScreen(*this, Event->angleDelta().y() / 2); }

}  // namespace blunko
