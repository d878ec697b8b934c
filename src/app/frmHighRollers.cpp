#include "app/frmHighRollers.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "storage/NameRule.h"
#include "widgets/Colours.h"
#include "widgets/Fonts.h"

namespace blunko {

namespace {

constexpr int NameColumn = 16;        // letters, dots included
constexpr int ScoreColumn = 5;        // digits
constexpr qsizetype LongestRow = 60;  // letters
constexpr int Spare = 4;              // px in the text boxes
constexpr double ListPoints = 9.75;
const QColor Navy(0, 0, 128);

}  // namespace

frmHighRollers::frmHighRollers(HighRollers& Lists, Desktop& Screen, QWidget* Main)
    : PlacedDialog(Main), rollers(Lists), desktop(Screen), frmMain(Main) {
  setObjectName(QStringLiteral("frmHighRollers"));
  setWindowTitle(QStringLiteral("Tollmoor Blunko - High Rollers"));
  setWindowIcon(frmMain->windowIcon());
  QPalette Colours = palette();
  Colours.setColor(QPalette::Window, FormBlue);
  Colours.setColor(QPalette::WindowText, Qt::yellow);
  Colours.setColor(QPalette::Link, Qt::yellow);
  setPalette(Colours);

  Image1 = NewPicture("Image1", QStringLiteral(":/art/rollers_top.svg"));
  Image2 = NewPicture("Image2", QStringLiteral(":/art/rollers_bottom.svg"));
  lblHSTS = NewHeading("lblHSTS", QStringLiteral("Highest Single\nTurn Score:"));
  lblBMoV = NewHeading("lblBMoV", QStringLiteral("Biggest Whoopin'\n(Margin of Victory)"));
  txtHSTSList = NewList("txtHSTSList", QStringLiteral("Highest Single Turn Score"));
  txtBMoVList = NewList("txtBMoVList", QStringLiteral("Biggest Whoopin' (Margin of Victory)"));
  lblReset = new LinkLabel(QStringLiteral("Reset List"), this);
  lblReset->setObjectName(QStringLiteral("lblReset"));
  cmdOK = new ButtonPlus(QStringLiteral("OK"), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setMinimumWidth(110);
  cmdOK->setAutoDefault(true);
  cmdOK->setDefault(true);
  connect(lblReset, &QPushButton::clicked, this, &frmHighRollers::lblReset_Click);
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

  auto* Columns = new QGridLayout;
  Columns->setHorizontalSpacing(12);
  Columns->setVerticalSpacing(4);
  Columns->addWidget(lblHSTS, 0, 0);
  Columns->addWidget(lblBMoV, 0, 1);
  Columns->addWidget(txtHSTSList, 1, 0);
  Columns->addWidget(txtBMoVList, 1, 1);
  auto* Bottom = new QGridLayout;  // one cell: the button in the middle, the link at the left
  Bottom->addWidget(lblReset, 0, 0, Qt::AlignLeft | Qt::AlignVCenter);
  Bottom->addWidget(cmdOK, 0, 0, Qt::AlignCenter);
  auto* Outer = new QVBoxLayout(this);
  Outer->setContentsMargins(12, 10, 12, 12);
  Outer->setSpacing(8);
  Outer->addWidget(Image1, 0, Qt::AlignHCenter);
  Outer->addLayout(Columns);
  Outer->addWidget(Image2, 0, Qt::AlignHCenter);
  Outer->addLayout(Bottom);
  Outer->setSizeConstraint(QLayout::SetFixedSize);

  ShowHighRollerLists();
  FixButtonColours(*this);
  cmdOK->setFocus();
}

QLabel* frmHighRollers::NewHeading(const char* Name, const QString& Caption) {
  auto* Made = new QLabel(Caption, this);
  Made->setObjectName(QLatin1String(Name));
  Made->setFont(FontOf(Typeface::Verdana, 9.75, true));
  Made->setAlignment(Qt::AlignCenter);
  return Made;
}

QPlainTextEdit* frmHighRollers::NewList(const char* Name, const QString& Description) {
  auto* Made = new QPlainTextEdit(this);
  Made->setObjectName(QLatin1String(Name));
  Made->setAccessibleName(Description);
  Made->setReadOnly(true);
  Made->setTabChangesFocus(true);
  Made->setLineWrapMode(QPlainTextEdit::NoWrap);
  Made->setFont(FontOf(Typeface::CourierNew, ListPoints));
  QPalette Colours = Made->palette();
  Colours.setColor(QPalette::Base, Navy);
  Colours.setColor(QPalette::Text, Qt::yellow);
  Made->setPalette(Colours);
  Made->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  Made->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  return Made;
}

SvgBox* frmHighRollers::NewPicture(const char* Name, const QString& Resource) {
  auto* Made = new SvgBox(Resource, this);
  Made->setObjectName(QLatin1String(Name));
  Made->setFixedSize(Made->sizeHint());
  return Made;
}

void frmHighRollers::Place() { PlaceFrame(*this, frmMain->pos()); }

void frmHighRollers::ShowHighRollerLists() {
  rollers.LoadHighRollers();
  FillList(txtHSTSList, rollers.Lists().lstHSTS);
  FillList(txtBMoVList, rollers.Lists().lstBMoV);
}

/// The box is as large as its rows: a long name from a foreign file makes it wider.
void frmHighRollers::FillList(QPlainTextEdit* Box, const RollerList& List) {
  QStringList Rows;
  qsizetype Longest = NameColumn + ScoreColumn;
  for (const HighRoller& Entry : List) {
    const QString Name = HeldToNameRule(Entry.Name);
    Rows << Name + DotString(NameColumn - static_cast<int>(Name.size())) + QString::number(Entry.Score);
    Longest = qBound(Longest, Rows.back().size(), LongestRow);
  }
  Box->setPlainText(Rows.join(QLatin1Char('\n')));
  const QFontMetricsF Metrics(Box->font());
  const qreal Around = 2 * (Box->document()->documentMargin() + Box->frameWidth());
  const qreal Width = Metrics.horizontalAdvance(QString(Longest, QLatin1Char('0')));
  const qreal Height = qCeil(Metrics.lineSpacing()) * static_cast<qreal>(Rows.size());
  Box->setFixedSize(qCeil(Width + Around) + Spare, qCeil(Height + Around) + Spare);
}

QString frmHighRollers::DotString(int Count) { return QString(qMax(Count, 0), QLatin1Char('.')); }

void frmHighRollers::lblReset_Click() {
  if (!desktop.AskYesNo("Are you sure you want to reset the high score lists?", "Reset Lists?")) return;
  rollers.ResetHighRollers();
  ShowHighRollerLists();
}

}  // namespace blunko
