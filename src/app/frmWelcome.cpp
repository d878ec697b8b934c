#include "app/frmWelcome.h"

#include <QVBoxLayout>

#include "Links.h"
#include "app/OpenInShell.h"
#include "storage/GameSettings.h"
#include "widgets/Boxes.h"
#include "widgets/FormBuilder.h"
#include "widgets/Pictures.h"

namespace blunko {

namespace {

const QColor TipsColour(165, 205, 255);
const QColor ExitColour(145, 195, 255);
constexpr QSize ButtonSize(300, 36);  // px, at least

}  // namespace

frmWelcome::frmWelcome(const IniInfo& Info, Desktop& Screen, QWidget* Main)
    : PlacedDialog(Main), info(Info), desktop(Screen) {
  setObjectName("frmWelcome");
  setWindowTitle("How to Blunko");
  Label1 = MakeText(this, "Label1", ProductName, FontOf(Typeface::ComicSans, 24, true));
  Label2 = MakeText(this, "Label2", "by Tollmoor Games", FontOf(Typeface::Verdana, 9.75));
  cmdLearn =
      MakeButton(this, "cmdLearn", "How to Play Tollmoor Blunko", [this] { emit helpAsked("PlayingBlunko.htm"); });
  cmdPoints =
      MakeButton(this, "cmdPoints", "Dice Point Values", [this] { emit helpAsked("PlayingBlunko.htm#scoring"); });
  cmdTips = MakeButton(this, "cmdTips", "Blunko Tips && Tricks", [this] { emit helpAsked("StrategyAndHints.htm"); });
  cmdWebSite = MakeButton(this, "cmdWebSite", "Visit Tollmoor Games's Web Site", [] { OpenInShell(WebSite); });
  cmdExit = MakeButton(this, "cmdExit", "Start Playing Blunko!", &QDialog::accept);
  cmdTips->setBackColor(TipsColour);
  cmdExit->setBackColor(ExitColour);
  cmdExit->setDefault(true);
  lblCheck = Make<TickBox>(this, "lblCheck");
  lblShowWelcome = MakeWordsOf(lblCheck, "lblShowWelcome", "Show this welcome window");
  const QString Stored = info.ReadInfoValue(ShowWelcomeMessageKey);
  lblCheck->setChecked(Stored.isEmpty() || Stored == QLatin1String("1"));
  connect(lblCheck, &QAbstractButton::clicked, this, &frmWelcome::lblCheck_Click);
  FixButtonColours(*this);
  LayOut();
  cmdExit->setFocus();
}

void frmWelcome::LayOut() {
  auto* Column = new QVBoxLayout(this);
  Column->setContentsMargins(14, 14, 14, 14);  // no wider than the table
  Column->setSpacing(6);
  auto* Dice = Make<SvgBox>(this, "picDice", QStringLiteral(":/art/welcome.svg"));
  Dice->setFixedSize(Dice->sizeHint());
  Column->addWidget(Dice, 0, Qt::AlignCenter);
  Column->addWidget(Label1);
  Column->addWidget(Label2);
  Column->addSpacing(10);
  for (ButtonPlus* Choice : {cmdLearn, cmdPoints, cmdTips, cmdWebSite}) {
    Choice->setMinimumSize(ButtonSize);
    Column->addWidget(Choice);
  }
  Column->addSpacing(10);
  cmdExit->setMinimumSize(ButtonSize);
  Column->addWidget(cmdExit);
  Column->addSpacing(6);
  Column->addLayout(CentredRow({lblCheck, lblShowWelcome}, 6));
  Column->setSizeConstraint(QLayout::SetFixedSize);
}

/// The box has changed by a click on it or on its label.
void frmWelcome::lblCheck_Click() {
  desktop.Beep();
  info.WriteInfoValue(ShowWelcomeMessageKey, lblCheck->isChecked() ? QStringLiteral("1") : QStringLiteral("0"));
  if (!lblCheck->isChecked()) WelcomeSwitchedOff = true;
}

/// Whichever way the dialog closes.
void frmWelcome::done(int Result) {
  if (WelcomeSwitchedOff && info.ReadInfoValue(ShowWelcomeMessageKey) == QLatin1String("0")) {
    desktop.MessageBox(
        "This Welcome Window will no longer be displayed when Tollmoor Blunko starts up.\n"
        "If you want to view it again, just click on \"Help, How to Play\" from the main menu.");
  }
  PlacedDialog::done(Result);
}

}  // namespace blunko
