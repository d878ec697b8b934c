#include "table/frmScorePad.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPalette>
#include <QScreen>

#include "widgets/Colours.h"
#include "widgets/FormBuilder.h"
#include "widgets/Twips.h"

namespace blunko {

namespace {

constexpr int Width = 2595;                                      // twips
constexpr int GapToTable = 175;                                  // twips
constexpr int FirstRow = 1380, RowPitch = 420, RowHeight = 375;  // twips
const QColor SeatOnTurn(0x30, 0xFF, 0x30);
const QColor OtherSeat(Qt::black);
const QColor Heading(Qt::yellow);
const QColor Plate(0, 28, 84);       // under the seat on turn
constexpr int ScoreEdge = 2415;      // twips: where the scores end, as their heading does
constexpr int Margin = 5, Mark = 4;  // px

}  // namespace

frmScorePad::frmScorePad(const Module1& State, QWidget* Table)
    : QWidget(Table, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      m(State),
      table(Table) {
  setObjectName(QStringLiteral("frmScorePad"));
  setWindowTitle(QStringLiteral(" Score Pad"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  SetColours(*this, {{QPalette::Window, FormBlue}});
  setAutoFillBackground(true);

  const auto Text = [this](const QString& Name, const QString& Caption, QRect Place, Qt::Alignment Side, QColor Ink) {
    auto* Made = Placed(
        MakeText<FitLabel>(this, Name, Caption, FontOf(Typeface::Verdana, 9.75, true), Side | Qt::AlignTop), Place);
    Made->setForeColor(Ink);
    Made->setAttribute(Qt::WA_TransparentForMouseEvents);
    return Made;
  };
  lblGoal = Text(QStringLiteral("lblGoal"), {}, TwipsRect(120, 90, 2250, 375), Qt::AlignHCenter, Heading);
  label_break_in =
      Text(QStringLiteral("label_break_in"), {}, TwipsRect(120, 480, 2250, 375), Qt::AlignHCenter, Heading);
  Label2 =
      Text(QStringLiteral("Label2"), QStringLiteral("Player"), TwipsRect(240, 960, 1095, 375), Qt::AlignLeft, Heading);
  Label3 =
      Text(QStringLiteral("Label3"), QStringLiteral("Score"), TwipsRect(1800, 960, 615, 375), Qt::AlignRight, Heading);
  for (FitLabel* Underlined : {Label2, Label3}) {
    QFont Font = Underlined->font();
    Font.setUnderline(true);
    Underlined->setFont(Font);
  }
  for (int i = 0; i < MaxSeats; ++i) {
    const int Top = FirstRow + RowPitch * i;
    lblPlayer[i] = Text(QStringLiteral("lblPlayer(%1)").arg(i), {}, TwipsRect(240, Top, 1560, RowHeight), Qt::AlignLeft,
                        OtherSeat);
    lblPlayer[i]->setContentsMargins(0, 0, 4, 0);  // a long name keeps away from the score
    lblScore[i] =
        Text(QStringLiteral("lblScore(%1)").arg(i), {}, TwipsRect(1800, Top, 750, 255), Qt::AlignRight, OtherSeat);
    lblScore[i]->setContentsMargins(0, 0, Pixels(1800 + 750 - ScoreEdge), 0);
  }
  UpdateActivePlayer();
}

void frmScorePad::SetPosition() {
  Form_Activate();  // a change of size after the move would shift the frame
  const QRect Table = table->frameGeometry();
  const QRect Screen = table->screen()->geometry();
  int Left = Table.right() + 1 + Pixels(GapToTable);
  if (Left > Screen.right()) Left = Table.left() - Pixels(GapToTable) - frameGeometry().width();
  move(Left, Table.top());
}

void frmScorePad::UpdateActivePlayer() {
  for (int i = 0; i < m.NumPlayers; ++i) {
    const QColor Ink = i == m.CurrentPlayer ? SeatOnTurn : OtherSeat;
    QFont Font = lblPlayer[i]->font();
    Font.setItalic(m.PlayerIsComputer[i]);
    lblPlayer[i]->setFont(Font);
    lblPlayer[i]->setForeColor(Ink);
    lblScore[i]->setText(QString::number(m.PlayerScore[i]));
    lblScore[i]->setForeColor(Ink);
    const bool SaysSo = m.PlayerIsComputer[i] && m.PlayerName[i] != "Computer";
    SetName(*lblPlayer[i], QString::fromStdString(m.PlayerName[i]) + QStringLiteral(", %1").arg(m.PlayerScore[i]) +
                               (i == m.CurrentPlayer ? ", on turn" : "") + (SaysSo ? ", computer" : ""));
  }
  update();
}

/// A line under the headings, and a plate with an arrow for the seat on turn, which is seen without its green too.
void frmScorePad::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  Painter.setRenderHint(QPainter::Antialiasing);
  const QRectF Line(Margin, Pixels(FirstRow) - Margin, width() - 2 * Margin, 1);
  Painter.fillRect(Line, QColor(255, 255, 0, 150));
  if (m.CurrentPlayer >= m.NumPlayers) return;
  const QRectF Row(Margin, Pixels(FirstRow + RowPitch * m.CurrentPlayer) - 3, width() - 2 * Margin,
                   Pixels(RowHeight) - 2);
  Painter.setPen(Qt::NoPen);
  Painter.setBrush(Plate);
  Painter.drawRoundedRect(Row, Margin, Margin);
  Painter.setBrush(SeatOnTurn);
  const QPointF Tip(Row.left() + 2 + Mark * 1.5, Row.center().y());
  Painter.drawPolygon(QPolygonF{Tip, Tip + QPointF(-Mark * 1.5, -Mark), Tip + QPointF(-Mark * 1.5, Mark)});
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
  const int LastSeat = m.NumPlayers > 1 ? m.NumPlayers - 1 : 1;
  setFixedSize(Pixels(Width), Pixels(FirstRow + RowPitch * LastSeat + RowHeight));
  UpdateActivePlayer();
}

void frmScorePad::showEvent(QShowEvent* Event) {
  Form_Activate();
  QWidget::showEvent(Event);
}

void frmScorePad::changeEvent(QEvent* Event) {
  QWidget::changeEvent(Event);
  if (Event->type() == QEvent::ActivationChange && isActiveWindow()) Form_Activate();
}

// The pad has no use for keys: those typed while it has the focus are meant for the table.
void frmScorePad::keyPressEvent(QKeyEvent* Event) { QCoreApplication::sendEvent(table, Event); }
void frmScorePad::keyReleaseEvent(QKeyEvent* Event) { QCoreApplication::sendEvent(table, Event); }

}  // namespace blunko
