#include "app/frmWelcome.h"

#include <QPainter>
#include <QVBoxLayout>

#include "Links.h"
#include "app/OpenInShell.h"
#include "storage/GameSettings.h"
#include "widgets/Boxes.h"
#include "widgets/FormBuilder.h"

namespace blunko {

const QColor TipsColour(165, 205, 255);
constexpr QSize ButtonSize(300, 36);  // px, at least
constexpr QSize DiceSize(344, 92);    // px: with its frame no wider than the table

frmWelcome::frmWelcome(const IniInfo& Info, Desktop& Screen, QWidget* Main)
    : PlacedDialog(Main, "frmWelcome", "How to Blunko"), info(Info), desktop(Screen) {
  Label1 = MakeTitle(this, "Label1", ProductName, 32, Navy);
  Label2 = MakeText(this, "Label2", "by Tollmoor Games", FontOf(Typeface::Verdana, 13));
  cmdLearn =
      MakeButton(this, "cmdLearn", "How to Play Tollmoor Blunko", [this] { emit helpAsked("PlayingBlunko.htm"); });
  cmdPoints =
      MakeButton(this, "cmdPoints", "Dice Point Values", [this] { emit helpAsked("PlayingBlunko.htm#scoring"); });
  cmdTips = MakeButton(this, "cmdTips", "Blunko Tips && Tricks", [this] { emit helpAsked("StrategyAndHints.htm"); });
  cmdWebSite = MakeButton(this, "cmdWebSite", "Visit Tollmoor Games's Web Site", [] { OpenInShell(WebSite); });
  cmdExit = MakeButton(this, "cmdExit", "Start Playing Blunko!", &QDialog::accept);
  cmdTips->setBackColor(TipsColour);
  SetFirst(cmdExit);
  lblCheck = Make<TickBox>(this, "lblCheck");
  lblShowWelcome = MakeWordsOf(lblCheck, "lblShowWelcome", "Show this welcome window");
  const QString Stored = info.ReadInfoValue(ShowWelcomeMessageKey);
  lblCheck->setChecked(Stored.isEmpty() || Stored == QLatin1String("1"));
  connect(lblCheck, &QAbstractButton::clicked, this, &frmWelcome::lblCheck_Click);
  picDice = Make<SvgBox>(this, "picDice", QStringLiteral(":/art/welcome.svg"));
  picDice->setFixedSize(DiceSize);
  framed = {picDice};
  for (ButtonPlus* Choice : {cmdLearn, cmdPoints, cmdTips, cmdWebSite, cmdExit}) Choice->setMinimumSize(ButtonSize);
  Stack(
      this, {14 + FrameWidth, 12 + FrameWidth, 14 + FrameWidth, 12}, 6,
      {picDice, FrameWidth, Label1, Label2, 10, CentredRow({cmdLearn}), CentredRow({cmdPoints}), CentredRow({cmdTips}),
       CentredRow({cmdWebSite}), 6, CentredRow({cmdExit}), 6, CentredRow({lblCheck, lblShowWelcome})})
      ->setSizeConstraint(QLayout::SetFixedSize);
}

void frmWelcome::paintEvent(QPaintEvent* Event) {
  PlacedDialog::paintEvent(Event);
  QPainter(this).drawPixmap(picDice->pos(), Felt(DiceSize, FeltRed, devicePixelRatioF()));
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
