#include "table/Strip.h"

#include <QPainter>
#include <QScreen>

#include "table/frmMain.h"
#include "widgets/PlacedDialog.h"
#include "widgets/X11.h"

namespace blunko {

namespace {

/// The left edge moves, everything on the table stays where it is on the screen. `Whole`: the window in its new size.
/// Nothing is painted before the window has it.
void SetStripWidth(frmMain& Form, int Width, const QImage& Whole) {
  HoldRightEdge(Form, Whole);
  const QRect Place = Form.geometry().adjusted(Form.picGameTray->x() - Width, 0, 0, 0);
  Form.setMinimumSize(Form.minimumSize().boundedTo(Place.size()));
  Form.setMaximumSize(Form.maximumSize().expandedTo(Place.size()));
  Form.setGeometry(Place);
  Form.setFixedSize(Place.size());
  Form.picGameTray->move(Width, 0);
  AwaitSize(Form);
}

}  // namespace

void OpenStrip(frmMain& Form, const QPixmap& Picture) {
  const int Width = Picture.deviceIndependentSize().toSize().width();
  QImage Whole((Form.size() + QSize(Width, 0)) * Form.devicePixelRatioF(), QImage::Format_RGB32);
  Whole.setDevicePixelRatio(Form.devicePixelRatioF());
  QPainter Painter(&Whole);
  Painter.drawPixmap(0, 0, Picture);
  Painter.drawPixmap(Width, 0, Form.picGameTray->grab(Form.rect()));
  SetStripWidth(Form, Width, Whole);
}

void CloseStrip(frmMain& Form) {
  const QSize Table(Form.width() - Form.picGameTray->x(), Form.height());
  SetStripWidth(Form, 0, Form.picGameTray->grab(QRect(QPoint(), Table)).toImage());
}

QPoint TableCorner(const frmMain& Form) { return Form.pos() + QPoint(Form.picGameTray->x(), 0); }

void CentreOnScreen(frmMain& Form) { CentreFrame(Form, Form.screen()->geometry()); }

}  // namespace blunko
