#include "table/frmScorePad.h"

#include <QEvent>
#include <QPainter>
#include <QPalette>
#include <QScreen>

#include "widgets/FormBuilder.h"
#include "widgets/Materials.h"
#include "widgets/PlacedDialog.h"
#include "widgets/X11.h"

namespace blunko {

namespace {

constexpr int Width = 173, GapToTable = 12, FirstRow = 92, RowPitch = 28, RowHeight = 25;  // px
const QColor SeatOnTurn(0x30, 0xFF, 0x30);
const QColor OtherSeat(Qt::black);
const QColor Heading(Qt::yellow);
constexpr int HeadHeight = 84, RowStrip = 23, Margin = 8, Mark = 4;  // px
constexpr qreal Round = 3.5, Wood = 3;                               // px

}  // namespace

frmScorePad::frmScorePad(const Module1& State, QWidget* Table)
    : QWidget(Table,
              (PlacesWindows() ? Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint
                               : Qt::WindowFlags(Qt::ToolTip)) |
                  Qt::WindowDoesNotAcceptFocus),
      m(State),
      table(Table) {
  setObjectName(QStringLiteral("frmScorePad"));
  setWindowTitle(QStringLiteral(" Score Pad"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  winId();  // what it is can only be told of a window that is there
  // For openbox: with fewer buttons beside the title. Weston would give it the focus, and leave it there.
  setAttribute(Qt::WA_X11NetWmWindowTypeMenu, !qEnvironmentVariableIsSet("WAYLAND_DISPLAY"));
  SetColours(*this, {{QPalette::Window, FormBlue}});
  setAutoFillBackground(true);

  const auto Text = [this](const QString& Name, const QString& Caption, QRect Place, Qt::Alignment Side, QColor Ink) {
    auto* Made = Placed(
        MakeText<FitLabel>(this, Name, Caption, FontOf(Typeface::Verdana, 13, true), Side | Qt::AlignTop), Place);
    SetColours(*Made, {{QPalette::WindowText, Ink}});
    Made->setAttribute(Qt::WA_TransparentForMouseEvents);
    return Made;
  };
  lblGoal = Text(QStringLiteral("lblGoal"), {}, QRect(8, 6, 150, 25), Qt::AlignHCenter, Heading);
  label_break_in = Text(QStringLiteral("label_break_in"), {}, QRect(8, 32, 150, 25), Qt::AlignHCenter, Heading);
  Label2 = Text(QStringLiteral("Label2"), QStringLiteral("Player"), QRect(16, 64, 73, 25), Qt::AlignLeft, Heading);
  Label3 = Text(QStringLiteral("Label3"), QStringLiteral("Score"), QRect(120, 64, 41, 25), Qt::AlignRight, Heading);
  for (FitLabel* Head : {lblGoal, label_break_in, Label2, Label3}) SetColours(*Head, {{QPalette::Window, Navy}});
  for (FitLabel* Underlined : {Label2, Label3}) {
    QFont Font = Underlined->font();
    Font.setUnderline(true);
    Underlined->setFont(Font);
  }
  for (int i = 0; i < MaxSeats; ++i) {
    const int Top = FirstRow + RowPitch * i;
    lblPlayer[i] =
        Text(QStringLiteral("lblPlayer(%1)").arg(i), {}, QRect(16, Top, 104, RowHeight), Qt::AlignLeft, OtherSeat);
    lblPlayer[i]->setContentsMargins(0, 0, 4, 0);  // a long name keeps away from the score
    lblScore[i] = Text(QStringLiteral("lblScore(%1)").arg(i), {}, QRect(120, Top, 50, 17), Qt::AlignRight, OtherSeat);
    lblScore[i]->setContentsMargins(0, 0, 9, 0);  // to the end of their heading
  }
  UpdateActivePlayer();
  if (PlacesWindows()) return;
  for (QWidget* Each : {table, static_cast<QWidget*>(this)}) Each->installEventFilter(this);
}

void frmScorePad::SetPosition() {
  Form_Activate();  // a change of size after the move would shift the frame
  // What hangs on the table is placed from its corner, as on Wayland the table itself has no place, and has to touch
  // it: mutter would take it away.
  const QRect Table = (PlacesWindows() ? table->geometry() : table->rect()) + FrameOf(*table);
  const int Gap = PlacesWindows() ? GapToTable : 0;
  int Left = Table.right() + 1 + Gap;
  if (PlacesWindows() ? Left > table->screen()->geometry().right() : turned)
    Left = Table.left() - Gap - FramePlace(*this).width();
  PlaceFrame(*this, {Left, Table.top()});
  if (!PlacesWindows()) hide();  // it is moved only by being hung up anew
}

/// What hangs on the table goes along with its width, and by a click to its other side: only the compositor knows where
/// the screen ends, and KWin moves the table away from under it.
bool frmScorePad::eventFilter(QObject* Of, QEvent* Event) {
  if (Event->type() == (Of == this ? QEvent::MouseButtonPress : QEvent::Resize) && isVisible()) {
    turned ^= Of == this;
    SetPosition();
    show();
  }
  return QWidget::eventFilter(Of, Event);
}

void frmScorePad::UpdateActivePlayer() {
  for (int i = 0; i < m.NumPlayers; ++i) {
    const bool OnTurn = i == m.CurrentPlayer;
    QFont Font = lblPlayer[i]->font();
    Font.setItalic(m.PlayerIsComputer[i]);
    lblPlayer[i]->setFont(Font);
    lblScore[i]->setText(QString::number(m.PlayerScore[i]));
    for (FitLabel* Label : {lblPlayer[i], lblScore[i]}) {
      SetColours(*Label, {{QPalette::Window, OnTurn ? Navy : SeatBlue},
                          {QPalette::WindowText, OnTurn ? SeatOnTurn : OtherSeat}});
    }
    const bool SaysSo = m.PlayerIsComputer[i] && m.PlayerName[i] != "Computer";
    SetName(*lblPlayer[i], QString::fromStdString(m.PlayerName[i]) + QStringLiteral(", %1").arg(m.PlayerScore[i]) +
                               (OnTurn ? ", on turn" : "") + (SaysSo ? ", computer" : ""));
  }
  update();
}

/// A navy plate for the headings, a strip for each seat, a sunk plate with an arrow for the one on turn, which is seen
/// without its green too, and a frame of walnut.
void frmScorePad::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  Painter.setRenderHint(QPainter::Antialiasing);
  Painter.setPen(Qt::NoPen);
  const qreal Wide = width(), High = height();
  QLinearGradient Fall({0, HeadHeight}, {Wide * 0.6, High});
  Fall.setColorAt(0, FormBlue.lighter(104));
  Fall.setColorAt(1, FormBlue.darker(107));
  Painter.fillRect(rect(), Fall);
  DrawNavy(Painter, {0, 0, Wide, HeadHeight});
  Painter.fillRect(QRectF(0, HeadHeight, Wide, 1), Brass);
  Painter.fillRect(QRectF(0, HeadHeight + 1, Wide, 2), Thin(Shade, 0.35));
  for (int i = 0; i < m.NumPlayers; ++i) {
    const QRectF Row(Margin, FirstRow + RowPitch * i - 4, Wide - 2 * Margin, RowStrip);
    if (i == m.CurrentPlayer) {
      DrawPlate(Painter, Row, Round, Navy);
      Painter.setBrush(SeatOnTurn);
      const QPointF Tip(Row.left() + 2 + Mark * 1.5, Row.center().y());
      Painter.drawPolygon(QPolygonF{Tip, Tip + QPointF(-Mark * 1.5, -Mark), Tip + QPointF(-Mark * 1.5, Mark)});
      continue;
    }
    Painter.setBrush(Thin(Shade, 0.3));
    Painter.drawRoundedRect(Row.translated(0.5, 1.2), Round, Round);
    QLinearGradient Light(Row.topLeft(), Row.bottomRight());
    Light.setColorAt(0, SeatBlue.lighter(108));
    Light.setColorAt(1, SeatBlue.darker(106));
    Painter.setBrush(Light);
    Painter.drawRoundedRect(Row, Round, Round);
    Painter.fillRect(QRectF(Row.left() + Round, Row.top(), Row.width() - 2 * Round, 1), Thin(Qt::white, 0.5));
  }
  for (const QRectF& Rail : {QRectF(0, 0, Wood, High), {Wide - Wood, 0, Wood, High}, {0, High - Wood, Wide, Wood}}) {
    Painter.fillRect(Rail, Walnut);
  }
  Painter.setBrush(Qt::NoBrush);
  Painter.setPen(WalnutDark);
  Painter.drawPolyline(QPolygonF{{0.5, 0}, {0.5, High - 0.5}, {Wide - 0.5, High - 0.5}, {Wide - 0.5, 0}});
  Painter.setPen(Thin(Brass, 0.9));
  Painter.drawPolyline(QPolygonF{{Wood + 0.5, 0},
                                 {Wood + 0.5, High - Wood - 0.5},
                                 {Wide - Wood - 0.5, High - Wood - 0.5},
                                 {Wide - Wood - 0.5, 0}});
}

QList<QWidget*> frmScorePad::Rows() const {
  QList<QWidget*> All{lblGoal, label_break_in};
  for (int i = 0; i < m.NumPlayers; ++i) All.append(lblPlayer[i]);
  return All;
}

void frmScorePad::Form_Activate() {
  lblGoal->setText(QStringLiteral("(Playing to %1)").arg(m.PlayToScore));
  label_break_in->setText(QStringLiteral("(%1 to break in)").arg(m.BreakInScore));
  for (int i = 0; i < m.NumPlayers; ++i) lblPlayer[i]->setText(QString::fromStdString(m.PlayerName[i]));
  const int LastSeat = qMax(m.NumPlayers - 1, 1);
  FixSize(*this, {Width, FirstRow + RowPitch * LastSeat + RowHeight});
  UpdateActivePlayer();
}

/// What is offered to the pad is the table's: awesome and marco have taken it from there, for the mouse or a click.
bool frmScorePad::nativeEvent(const QByteArray&, void* Message, qintptr*) {
  if (OffersFocus(Message)) table->activateWindow();
  return false;
}

void frmScorePad::showEvent(QShowEvent* Event) {
  Form_Activate();
  QWidget::showEvent(Event);
}

}  // namespace blunko
