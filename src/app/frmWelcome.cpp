#include "app/frmWelcome.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "Links.h"
#include "app/OpenInShell.h"
#include "widgets/Boxes.h"
#include "widgets/Fonts.h"
#include "widgets/Pictures.h"

namespace blunko {

namespace {

const QString WelcomeKey = QStringLiteral("ShowWelcomeMessage");
const QColor TipsColour(165, 205, 255);
const QColor ExitColour(145, 195, 255);

}  // namespace

frmWelcome::frmWelcome(const IniInfo& Info, Desktop& Screen, HelpCommand ShowHelpTopic, QWidget* Main)
    : QDialog(Main), info(Info), desktop(Screen) {
  setObjectName(QStringLiteral("frmWelcome"));
  setWindowTitle(QStringLiteral("How to Blunko"));

  const auto Title = [this](const char* Name, const QString& Caption, Typeface Face, double Points, bool Bold) {
    auto* Made = new QLabel(Caption, this);
    Made->setObjectName(QLatin1String(Name));
    Made->setFont(FontOf(Face, Points, Bold));
    Made->setAlignment(Qt::AlignCenter);
    return Made;
  };
  Label1 = Title("Label1", ProductName, Typeface::ComicSans, 24, true);
  Label2 = Title("Label2", QStringLiteral("by Tollmoor Games"), Typeface::Verdana, 9.75, false);

  const auto Button = [this](const char* Name, const QString& Caption, auto Run) {
    auto* Made = new ButtonPlus(Caption, this);
    Made->setObjectName(QLatin1String(Name));
    Made->setMinimumSize(300, 36);
    Made->setAutoDefault(true);
    connect(Made, &QPushButton::clicked, this, Run);
    return Made;
  };
  const auto Opens = [ShowHelpTopic](const char* Topic) { return [=] { ShowHelpTopic(QLatin1String(Topic)); }; };
  cmdLearn = Button("cmdLearn", QStringLiteral("How to Play Tollmoor Blunko"), Opens("PlayingBlunko.htm"));
  cmdPoints = Button("cmdPoints", QStringLiteral("Dice Point Values"), Opens("PlayingBlunko.htm#scoring"));
  cmdTips = Button("cmdTips", QStringLiteral("Blunko Tips && Tricks"), Opens("StrategyAndHints.htm"));
  cmdWebSite = Button("cmdWebSite", QStringLiteral("Visit Tollmoor Games's Web Site"), [] { OpenInShell(WebSite); });
  cmdExit = Button("cmdExit", QStringLiteral("Start Playing Blunko!"), &QDialog::accept);
  cmdTips->setBackColor(TipsColour);
  cmdExit->setBackColor(ExitColour);
  cmdExit->setDefault(true);

  lblCheck = new TickBox(this);
  lblCheck->setObjectName(QStringLiteral("lblCheck"));
  lblShowWelcome = new FitLabel(QStringLiteral("Show this welcome window"), this);
  lblShowWelcome->setObjectName(QStringLiteral("lblShowWelcome"));
  lblShowWelcome->setFont(FontOf(Typeface::Verdana, 8.25));
  lblShowWelcome->setForeColor(palette().color(QPalette::WindowText));
  lblCheck->setAccessibleName(lblShowWelcome->text());
  const QString Stored = info.ReadInfoValue(WelcomeKey);
  lblCheck->setChecked(Stored.isEmpty() || Stored == QLatin1String("1"));
  connect(lblCheck, &QAbstractButton::clicked, this, &frmWelcome::lblCheck_Click);
  connect(lblShowWelcome, &FitLabel::clicked, lblCheck, &QAbstractButton::click);
  FixButtonColours(*this);

  auto* Column = new QVBoxLayout(this);
  Column->setContentsMargins(24, 14, 24, 14);
  Column->setSpacing(6);
  auto* Dice = new SvgBox(QStringLiteral(":/art/welcome.svg"), this);
  Dice->setFixedSize(Dice->sizeHint());
  Column->addWidget(Dice, 0, Qt::AlignCenter);
  Column->addWidget(Label1);
  Column->addWidget(Label2);
  Column->addSpacing(10);
  for (ButtonPlus* Choice : {cmdLearn, cmdPoints, cmdTips, cmdWebSite}) Column->addWidget(Choice);
  Column->addSpacing(10);
  Column->addWidget(cmdExit);
  Column->addSpacing(6);
  auto* Box = new QHBoxLayout;
  Box->setSpacing(6);
  Box->addStretch();
  Box->addWidget(lblCheck);
  Box->addWidget(lblShowWelcome);
  Box->addStretch();
  Column->addLayout(Box);
  Column->setSizeConstraint(QLayout::SetFixedSize);
  cmdExit->setFocus();
}

/// The box has changed by a click on it or on its label.
void frmWelcome::lblCheck_Click() {
  desktop.Beep();
  info.WriteInfoValue(WelcomeKey, lblCheck->isChecked() ? QStringLiteral("1") : QStringLiteral("0"));
  if (!lblCheck->isChecked()) WelcomeSwitchedOff = true;
}

/// Whichever way the dialog closes.
void frmWelcome::done(int Result) {
  if (WelcomeSwitchedOff && info.ReadInfoValue(WelcomeKey) == QLatin1String("0")) {
    desktop.MessageBox(
        "This Welcome Window will no longer be displayed when Tollmoor Blunko starts up.\n"
        "If you want to view it again, just click on \"Help, How to Play\" from the main menu.");
  }
  QDialog::done(Result);
}

}  // namespace blunko
