#include "table/Strip.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include <utility>

#include "table/frmMain.h"
#include "widgets/PlacedDialog.h"
#include "widgets/X11.h"

namespace blunko {

namespace {

constexpr int Settling = 1000, SoonestDrag = 500;  // ms

}  // namespace

void Strip::Open(const QPixmap& Picture) {
  const int Width = Picture.deviceIndependentSize().toSize().width();
  QImage Whole((form.size() + QSize(Width, 0)) * form.devicePixelRatioF(), QImage::Format_RGB32);
  Whole.setDevicePixelRatio(form.devicePixelRatioF());
  QPainter Painter(&Whole);
  Painter.drawPixmap(0, 0, Picture);
  Painter.drawPixmap(Width, 0, form.picGameTray->grab(form.rect()));
  if (QWindow* const Window = form.windowHandle()) Window->installEventFilter(this);
  SetWidth(Width, Whole);
}

void Strip::Close() {
  const QRect Table(0, 0, form.width() - form.picGameTray->x(), form.height());
  SetWidth(0, form.picGameTray->grab(Table).toImage());
}

/// The left edge moves, everything on the table stays where it is on the screen. `Whole`: the window in its new size.
/// Nothing is painted before the window has it. A manager that keeps windows on the screen has moved the table: it goes
/// back in the end, unless the player has dragged it.
void Strip::SetWidth(int Width, const QImage& Whole) {
  const int Wider = Width - form.picGameTray->x();
  const QSize Size = form.size() + QSize(Wider, 0);
  const QRect Was = PlaceOnServer(form);
  QRect Place(closed, Size * form.devicePixelRatioF());
  if (Width > 0 || Was.topLeft() != opened) Place.moveTopRight(Was.topRight());
  if (Width > 0) closed = opened = Was.topLeft();
  HoldRightEdge(form, Whole);
  form.setMinimumSize(form.minimumSize().boundedTo(Size));
  form.setMaximumSize(form.maximumSize().expandedTo(Size));
  form.setGeometry(QRect(form.geometry().topLeft() - QPoint(Wider, 0), Size));
  FixSize(form, Size);
  form.picGameTray->move(Width, 0);
  AwaitPlace(form, Place);
  settling.setRemainingTime(Settling);
}

bool Strip::eventFilter(QObject* Window, QEvent* Event) {
  if (Event->type() == QEvent::Move && settling.remainingTime() > Settling - SoonestDrag)
    opened = PlaceOnServer(form).topLeft();
  const auto* const Mouse = dynamic_cast<QMouseEvent*>(Event);
  if (Mouse == nullptr) return false;
  if (Mouse->isBeginEvent()) {
    const QRect Place = static_cast<QWindow*>(Window)->geometry();  // as it is known at this point of the events
    const QPointF Off = Mouse->globalPosition() - Mouse->scenePosition() - Place.topLeft();
    nobodys = !settling.hasExpired() && (Off.manhattanLength() > 2 || Place.size() != form.size());
  }
  return Mouse->isEndEvent() ? std::exchange(nobodys, false) : nobodys;
}

}  // namespace blunko
