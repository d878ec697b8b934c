#include "app/frmNewGame.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>

#include "storage/NameRule.h"
#include "widgets/Fonts.h"
#include "widgets/NameValidator.h"
#include "widgets/Twips.h"

namespace blunko {

namespace {

constexpr int InnerWidth = 6000;                       // twips
constexpr int SeatGap = 2;                             // px, within the pitch
constexpr int SmallestHeight = 3495, SeatPitch = 360;  // twips
constexpr int OffsetLeft = 500, OffsetTop = 1550;      // twips, from the table's window

const char* const CountWords[] = {"One", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight"};

}  // namespace

frmNewGame::frmNewGame(Game& Table, const IniInfo& Info, const GameSettings& Options, QWidget* Main)
    : PlacedDialog(Main), game(Table), info(Info), settings(Options), frmMain(Main) {
  setObjectName(QStringLiteral("frmNewGame"));
  setWindowTitle(QStringLiteral(" Start New Game - Tollmoor Blunko"));
  setFont(FontOf(Typeface::Verdana, 8.25));
  Build();
}

void frmNewGame::Build() {
  auto* Outer = new QVBoxLayout(this);
  Outer->setContentsMargins(10, 8, 10, 10);
  Outer->setSpacing(6);

  const auto Frame = [this](const QString& Caption, auto& Options, auto Captions, int Columns) {
    auto* Box = new QGroupBox(Caption, this);
    auto* Grid = new QGridLayout(Box);
    Grid->setContentsMargins(8, 4, 6, 4);
    Grid->setVerticalSpacing(2);
    for (int i = 0; i < static_cast<int>(Options.size()); ++i) {
      Options[i] = new QRadioButton(Captions(i), Box);
      Grid->addWidget(Options[i], i / Columns, i % Columns);
    }
    return Box;
  };
  auto* Choices = new QHBoxLayout;
  Choices->setSpacing(6);
  Choices->addWidget(Frame(
                         QStringLiteral("Number of Players:"), optNumPlayers,
                         [](int i) { return QString::fromLatin1(CountWords[i]); }, 4),
                     1);
  Choices->addWidget(Frame(
      QStringLiteral("Play to:"), optPlayTo,
      [](int i) { return i == 0 ? QStringLiteral("5000") : QStringLiteral("10000"); }, 1));
  Choices->addWidget(Frame(
      QStringLiteral("\"Break In\" Score:"), optBreakIn,
      [](int i) { return i == 0 ? QStringLiteral("500") : QStringLiteral("1000"); }, 1));
  Outer->addLayout(Choices);

  auto* Seats = new QGridLayout;
  Seats->setHorizontalSpacing(10);
  Seats->setVerticalSpacing(SeatGap);
  Seats->setColumnStretch(0, 1);
  const auto Heading = [&](const QString& Caption, int Column) {
    auto* Made = new QLabel(Caption, this);
    QFont Bold = Made->font();
    Bold.setBold(true);
    Made->setFont(Bold);
    Seats->addWidget(Made, 0, Column);
  };
  Heading(QStringLiteral("Name"), 0);
  Heading(QStringLiteral("Computer Player?"), 1);
  Heading(QStringLiteral("Computer Style"), 2);
  for (int i = 0; i < MaxSeats; ++i) {
    TxtPlayerName[i] = new QLineEdit(this);
    TxtPlayerName[i]->setMaxLength(LongestName);
    TxtPlayerName[i]->setValidator(new NameValidator(TxtPlayerName[i]));
    TxtPlayerName[i]->setAccessibleName(QStringLiteral("Name of player %1").arg(i + 1));
    TxtPlayerName[i]->installEventFilter(this);
    chkComputer[i] = new QCheckBox(this);
    chkComputer[i]->setAccessibleName(QStringLiteral("Player %1 is a computer").arg(i + 1));
    cboStyle[i] = new QComboBox(this);
    cboStyle[i]->setAccessibleName(QStringLiteral("Computer style of player %1").arg(i + 1));
    for (const std::string_view Word : StyleWords) {
      cboStyle[i]->addItem(QString::fromLatin1(Word.data(), static_cast<qsizetype>(Word.size())));
    }
    Seats->addWidget(TxtPlayerName[i], i + 1, 0);
    Seats->addWidget(chkComputer[i], i + 1, 1, Qt::AlignCenter);
    Seats->addWidget(cboStyle[i], i + 1, 2);
    for (QWidget* Cell : {static_cast<QWidget*>(TxtPlayerName[i]), static_cast<QWidget*>(chkComputer[i]),
                          static_cast<QWidget*>(cboStyle[i])}) {
      Cell->setFixedHeight(Pixels(SeatPitch) - SeatGap);
    }
    connect(chkComputer[i], &QCheckBox::toggled, this, [this, i] { chkComputer_Click(i); });
    connect(optNumPlayers[i], &QRadioButton::toggled, this, [this, i](bool On) {
      if (On) optNumPlayers_Click(i);
    });
  }
  Seats->setColumnMinimumWidth(2, cboStyle[0]->sizeHint().width());
  Outer->addLayout(Seats);
  Outer->addStretch(1);

  cmdPlay = new ButtonPlus(QStringLiteral("Play !!!"), this);
  cmdCancel = new ButtonPlus(QStringLiteral("Cancel"), this);
  cmdSetDefault = new ButtonPlus(QStringLiteral("Save Game Setup as Default"), this);
  cmdSetDefault->setToolTip(QStringLiteral(
      " Click here to make Tollmoor Blunko always start with this game setup (same players and scoring options.) "));
  cmdPlay->setDefault(true);
  auto* Buttons = new QHBoxLayout;
  Buttons->addWidget(cmdPlay, 1);
  Buttons->addWidget(cmdCancel, 1);
  Buttons->addWidget(cmdSetDefault, 2);
  Outer->addLayout(Buttons);
  connect(cmdPlay, &QPushButton::clicked, this, &QDialog::accept);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(cmdSetDefault, &QPushButton::clicked, this, &frmNewGame::cmdSetDefault_Click);

  const std::pair<QWidget*, const char*> Names[] = {
      {cmdPlay, "cmdPlay"}, {cmdCancel, "cmdCancel"}, {cmdSetDefault, "cmdSetDefault"}};
  for (const auto& [Widget, Name] : Names) Widget->setObjectName(QLatin1String(Name));
  for (int i = 0; i < MaxSeats; ++i) {
    optNumPlayers[i]->setObjectName(QStringLiteral("optNumPlayers%1").arg(i));
    TxtPlayerName[i]->setObjectName(QStringLiteral("TxtPlayerName%1").arg(i));
    chkComputer[i]->setObjectName(QStringLiteral("chkComputer%1").arg(i));
    cboStyle[i]->setObjectName(QStringLiteral("cboStyle%1").arg(i));
  }
  for (int i = 0; i < 2; ++i) {
    optPlayTo[i]->setObjectName(QStringLiteral("optPlayTo%1").arg(i));
    optBreakIn[i]->setObjectName(QStringLiteral("optBreakIn%1").arg(i));
  }
  FixButtonColours(*this);
}

void frmNewGame::ShowModal() {
  const std::string Word = game.m.FormMessage;
  if (Word == "SameGame" && lastGame) {
    game.m.FormMessage.clear();
    game.FreshGame(*lastGame);
    return;
  }
  if (!loaded) Form_Load();
  Form_Activate();
  if (Word == "SameGame" || Word == "RestartGame") {
    game.m.FormMessage.clear();
  } else if (exec() != QDialog::Accepted) {
    game.t.cmdRoll.Enabled = false;
    Unload();
    return;
  }
  if (game.m.Quitting) return;
  lastGame = ShownSetup();
  game.FreshGame(*lastGame);
}

void frmNewGame::Form_Load() {
  loaded = true;
  game.desktop.Beep();
  optNumPlayers[0]->setChecked(true);
  optNumPlayers_Click(0);
}

/// The dialog always opens with the saved game, not with the last one.
void frmNewGame::Form_Activate() {
  const GameSetup Saved = ReadSetup(info, settings);
  optPlayTo[Saved.PlayToScore == 10000 ? 1 : 0]->setChecked(true);
  optBreakIn[Saved.BreakInScore == 500 ? 0 : 1]->setChecked(true);
  optNumPlayers[Saved.NumPlayers - 1]->setChecked(true);
  for (int i = 0; i < Saved.NumPlayers; ++i) {
    const GameSetup::Seat& Seat = Saved.Seats[i];
    TxtPlayerName[i]->setText(QString::fromStdString(Seat.Name));
    chkComputer[i]->setChecked(Seat.IsComputer);
    if (Seat.IsComputer) cboStyle[i]->setCurrentIndex(Seat.Style - Normal);
  }
  if (Saved.NumPlayers == 1) cboStyle[1]->setCurrentIndex(Saved.Seats[1].Style - Normal);
  cmdPlay->setFocus();
}

void frmNewGame::Place() { PlaceFrame(*this, frmMain->pos() + QPoint(Pixels(OffsetLeft), Pixels(OffsetTop))); }

void frmNewGame::optNumPlayers_Click(int Index) {
  const GameSetup Layout = SetupForPlayers(Index + 1);
  for (int i = 0; i < MaxSeats; ++i) {
    const bool Opponent = Index == 0 && i == 1;  // one player: a person against a computer
    const bool Shown = i <= Index || Opponent;
    TxtPlayerName[i]->setVisible(Shown);
    chkComputer[i]->setVisible(Shown);
    TxtPlayerName[i]->setText(QString::fromStdString(Layout.Seats[i].Name));
    TxtPlayerName[i]->setEnabled(!Opponent);
    chkComputer[i]->setChecked(Opponent);
    chkComputer[i]->setEnabled(!Opponent);
    cboStyle[i]->setCurrentIndex(0);
    chkComputer_Click(i);
  }
  FitHeight(Index);
}

void frmNewGame::chkComputer_Click(int Index) {
  cboStyle[Index]->setVisible(chkComputer[Index]->isChecked());
  cboStyle[Index]->setEnabled(chkComputer[Index]->isChecked());
}

void frmNewGame::FitHeight(int Index) {
  layout()->activate();
  const int Seats = Index < 1 ? 2 : Index + 1;
  const QSize Needed = layout()->minimumSize();
  setFixedSize(qMax(Pixels(InnerWidth), Needed.width()),
               qMax(Pixels(SmallestHeight + SeatPitch * (Seats - 2)), Needed.height()));
}

bool frmNewGame::eventFilter(QObject* Watched, QEvent* Event) {
  if (Event->type() == QEvent::FocusIn) {
    // After the click that brought the focus has placed its cursor.
    if (auto* Name = qobject_cast<QLineEdit*>(Watched)) QTimer::singleShot(0, Name, &QLineEdit::selectAll);
  }
  return PlacedDialog::eventFilter(Watched, Event);
}

GameSetup frmNewGame::ShownSetup() const {
  GameSetup Shown;
  for (int i = 0; i < MaxSeats; ++i) {
    if (optNumPlayers[i]->isChecked()) Shown.NumPlayers = static_cast<std::uint8_t>(i + 1);
    Shown.Seats[i] = {TxtPlayerName[i]->text().toStdString(), chkComputer[i]->isChecked(),
                      static_cast<std::uint8_t>(cboStyle[i]->currentIndex() + Normal)};
  }
  Shown.PlayToScore = optPlayTo[0]->isChecked() ? 5000 : 10000;
  Shown.BreakInScore = optBreakIn[0]->isChecked() ? 500 : 1000;
  return Shown;
}

void frmNewGame::cmdSetDefault_Click() {
  constexpr int FeedbackTime = 400;  // ms
  WriteSetup(ShownSetup(), info, settings);
  const QString Caption = cmdSetDefault->text();
  cmdSetDefault->setText(QStringLiteral("Saving..."));
  game.desktop.Sleep(FeedbackTime);
  cmdSetDefault->setText(QStringLiteral("Done..."));
  game.desktop.Beep();
  game.desktop.Sleep(FeedbackTime);
  cmdSetDefault->setText(Caption);
}

}  // namespace blunko
