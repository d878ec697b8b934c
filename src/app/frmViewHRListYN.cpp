#include "app/frmViewHRListYN.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "app/HighRollersCheck.h"
#include "storage/DayNumber.h"
#include "storage/NameRule.h"
#include "widgets/Colours.h"
#include "widgets/Fonts.h"

namespace blunko {

namespace {

constexpr int SmallestWidth = 370;  // px
const QColor ButtonColour(159, 202, 255);

}  // namespace

frmViewHRListYN::frmViewHRListYN(Module1& State, Desktop& Screen, const IniInfo& Info, QWidget* Main)
    : QDialog(Main), m(State), desktop(Screen), info(Info) {
  setObjectName(QStringLiteral("frmViewHRListYN"));
  setWindowTitle(QStringLiteral("Way to go !!!"));
  setWindowIcon(Main->windowIcon());
  QPalette Colours = palette();
  Colours.setColor(QPalette::Window, FormBlue);
  Colours.setColor(QPalette::WindowText, Qt::black);
  setPalette(Colours);

  const QStringList Fields = QString::fromStdString(m.FormMessage).split(FieldSeparator);
  const auto NewLabel = [this](const char* Name, const QString& Caption, const QFont& Font) {
    auto* Made = new QLabel(this);
    Made->setObjectName(QLatin1String(Name));
    Made->setTextFormat(Qt::PlainText);
    Made->setText(Caption);
    Made->setFont(Font);
    Made->setAlignment(Qt::AlignCenter);
    return Made;
  };
  lblWayToGo = NewLabel("lblWayToGo", QStringLiteral("Great Job, ") + Fields.value(0) + QStringLiteral("!!!"),
                        FontOf(Typeface::ComicSans, 15.75, true));
  QPalette Greeting = lblWayToGo->palette();
  Greeting.setColor(QPalette::WindowText, Qt::yellow);
  lblWayToGo->setPalette(Greeting);
  lblMessage = NewLabel(
      "lblMessage",
      PlaceMade(Fields.value(1), Fields.value(2)) + QStringLiteral("Would you like to view the high rollers list now?"),
      FontOf(Typeface::Verdana, 9.75));
  lblMessage->setWordWrap(true);
  cmdYes = NewButton("cmdYes", QStringLiteral("Yes"), "Yes");
  cmdNo = NewButton("cmdNo", QStringLiteral("No"), "No");
  cmdYes->setDefault(true);

  lblCheck = new TickBox(this);
  lblCheck->setObjectName(QStringLiteral("lblCheck"));
  lblDontAsk = new WordButton(QStringLiteral("Don't ask me this again today."), this);
  lblDontAsk->setObjectName(QStringLiteral("lblDontAsk"));
  lblDontAsk->setFont(FontOf(Typeface::Verdana, 8.25));
  lblDontAsk->setFocusPolicy(Qt::NoFocus);  // the box has it
  lblCheck->setAccessibleName(lblDontAsk->text());
  connect(lblCheck, &QAbstractButton::clicked, this, &frmViewHRListYN::lblCheck_Click);
  connect(lblDontAsk, &QPushButton::clicked, lblCheck, &QAbstractButton::click);

  auto* Buttons = new QHBoxLayout;
  Buttons->setSpacing(16);
  Buttons->addStretch(1);
  Buttons->addWidget(cmdYes);
  Buttons->addWidget(cmdNo);
  Buttons->addStretch(1);
  auto* Check = new QHBoxLayout;
  Check->setSpacing(6);
  Check->addStretch(1);
  Check->addWidget(lblCheck);
  Check->addWidget(lblDontAsk);
  Check->addStretch(1);
  auto* Outer = new QVBoxLayout(this);
  Outer->setContentsMargins(18, 14, 18, 12);
  Outer->setSpacing(12);
  Outer->addWidget(lblWayToGo);
  Outer->addWidget(lblMessage);
  Outer->addLayout(Buttons);
  Outer->addLayout(Check);
  FixButtonColours(*this);

  const int Width = qMax(SmallestWidth, Outer->minimumSize().width());
  setFixedSize(Width, Outer->totalHeightForWidth(Width));
  cmdYes->setFocus();
}

ButtonPlus* frmViewHRListYN::NewButton(const char* Name, const QString& Caption, const char* Word) {
  auto* Made = new ButtonPlus(Caption, this);
  Made->setObjectName(QLatin1String(Name));
  Made->setBackColor(ButtonColour);
  Made->setMinimumWidth(100);
  Made->setAutoDefault(true);
  connect(Made, &QPushButton::clicked, this, [this, Word] {
    m.FormMessage = Word;
    accept();
  });
  return Made;
}

void frmViewHRListYN::lblCheck_Click() {
  desktop.Beep();
  info.WriteInfoValue(NoQuestionKey, lblCheck->isChecked() ? DayNumber(QDate::currentDate()) : NoDay);
}

}  // namespace blunko
