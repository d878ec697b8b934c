#include "app/frmHighRollers.h"

#include <QGridLayout>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "storage/NameRule.h"
#include "widgets/FormBuilder.h"
#include "widgets/Materials.h"

namespace blunko {

constexpr int NameColumn = 16;        // letters, dots included
constexpr int ScoreColumn = 5;        // digits
constexpr qsizetype LongestRow = 60;  // letters
constexpr int Spare = 4, Border = 9;  // px in the text boxes
const QColor ListGround(0, 0, 128);

frmHighRollers::frmHighRollers(HighRollers& Lists, Desktop& Screen, QWidget* Main)
    : PlacedDialog(Main, "frmHighRollers", "Tollmoor Blunko - High Rollers", Cloth::Navy),
      rollers(Lists),
      desktop(Screen) {
  SetColours(*this, {{QPalette::WindowText, Qt::yellow}, {QPalette::Link, Qt::yellow}});
  Image1 = Make<SvgBox>(this, "Image1", ":/art/rollers_top.svg");
  Image2 = Make<SvgBox>(this, "Image2", ":/art/rollers_bottom.svg");
  const QFont Heading = FontOf(Typeface::Verdana, 13, true);
  lblHSTS = MakeText(this, "lblHSTS", "Highest Single\nTurn Score:", Heading);
  lblBMoV = MakeText(this, "lblBMoV", "Biggest Whoopin'\n(Margin of Victory)", Heading);
  txtHSTSList = MakeList("txtHSTSList", "Highest Single Turn Score");
  txtBMoVList = MakeList("txtBMoVList", "Biggest Whoopin' (Margin of Victory)");
  lblReset = Make<LinkLabel>(this, "lblReset", "Reset List");
  connect(lblReset, &QPushButton::clicked, this, &frmHighRollers::lblReset_Click);
  cmdOK = MakeButton(this, "cmdOK", "OK", &QDialog::accept);
  SetFirst(cmdOK);
  ShowHighRollerLists();
  LayOut();
}

void frmHighRollers::LayOut() {
  for (SvgBox* Picture : {Image1, Image2}) Picture->setFixedSize(Picture->sizeHint());
  cmdOK->setMinimumWidth(110);
  auto* Columns = new QGridLayout;
  Columns->setHorizontalSpacing(14 + 2 * FrameWidth);
  Columns->setVerticalSpacing(5 + FrameWidth);
  framed = {txtHSTSList, txtBMoVList};
  Columns->addWidget(lblHSTS, 0, 0);
  Columns->addWidget(lblBMoV, 0, 1);
  Columns->addWidget(txtHSTSList, 1, 0);
  Columns->addWidget(txtBMoVList, 1, 1);
  auto* Bottom = new QGridLayout;  // one cell: the button in the middle, the link at the left
  Bottom->addWidget(lblReset, 0, 0, Qt::AlignLeft | Qt::AlignVCenter);
  Bottom->addWidget(cmdOK, 0, 0, Qt::AlignCenter);
  Stack(this, {14 + FrameWidth, 10, 14 + FrameWidth, 12}, 8,
        {CentredRow({Image1}), Columns, FrameWidth, CentredRow({Image2}), Bottom})
      ->setSizeConstraint(QLayout::SetFixedSize);
}

QPlainTextEdit* frmHighRollers::MakeList(const QString& Name, const QString& Description) {
  auto* Made = Make<QPlainTextEdit>(this, Name);
  Made->setAccessibleName(Description);
  Made->setReadOnly(true);  // no input method over it
  Made->setTabChangesFocus(true);
  Made->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  Made->setLineWrapMode(QPlainTextEdit::NoWrap);
  Made->setFont(FontOf(Typeface::CourierNew, 13));
  Made->setFrameShape(QFrame::NoFrame);
  Made->document()->setDocumentMargin(Border);
  SetColours(*Made, {{QPalette::Base, ListGround}, {QPalette::Text, Qt::yellow}});
  Made->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  Made->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  return Made;
}

void frmHighRollers::Place() { PlaceFrame(*this, FramePlace(*parentWidget()).topLeft()); }

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
    const QString Score = QString::number(Entry.Score);
    QString Name = HeldToNameRule(Entry.Name);
    if (Name.size() + Score.size() > LongestRow) Name = Name.left(LongestRow - Score.size() - 1) + QChar(0x2026);
    Rows << Name + DotString(NameColumn - static_cast<int>(Name.size())) + Score;
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
  if (!desktop.AskYesNo("Are you sure you want to reset the high score lists?", "Reset Lists?", true)) return;
  const bool Reset = rollers.ResetHighRollers();
  ShowHighRollerLists();
  if (!Reset) desktop.MessageBox("The lists couldn't be reset: their file can't be written at the moment.");
}

}  // namespace blunko
