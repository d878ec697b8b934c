#include "app/frmNewGame.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QTimer>
#include <QVBoxLayout>

#include "storage/NameRule.h"
#include "widgets/FormBuilder.h"
#include "widgets/NameValidator.h"

namespace blunko {

namespace {

constexpr int InnerWidth = 400;                      // px
constexpr int Margin = 6, Gap = 4;                   // px
constexpr int SeatGap = 2;                           // px, within the pitch
constexpr int SmallestHeight = 233, SeatPitch = 24;  // px
constexpr QPoint Offset(33, 103);                    // px, from the table's window

const QString FrameStyle = QStringLiteral(
    "QGroupBox { border: 1px solid %1; border-radius: 5px; margin-top: 7px; background: rgba(255, 255, 255, 70); }"
    "QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top center; padding: 0 3px; }"
    "QRadioButton { spacing: 4px; }");

/// A frame with a choice of radio buttons in it.
template <std::size_t Count>
QGroupBox* MakeChoice(QWidget* Form, const QString& Caption, std::array<QRadioButton*, Count>& Options,
                      const QString& Name, const QStringList& Captions, int Columns) {
  auto* Frame = Make<QGroupBox>(Form, "fra" + Name, Caption);
  auto* Places = new QGridLayout(Frame);
  Places->setContentsMargins(2, 10, 2, 4);
  Places->setHorizontalSpacing(2);
  Places->setVerticalSpacing(2);
  for (int i = 0; i < static_cast<int>(Count); ++i) {
    Options[i] = MakeOption(Frame, Name + QString::number(i), Captions[i]);
    Places->addWidget(Options[i], i / Columns, i % Columns);
  }
  for (QWidget* Part : Frame->findChildren<QWidget*>()) Part->setFont(Form->font());  // styled parts inherit none
  Frame->setFont(Form->font());
  Frame->setStyleSheet(PaperStyle() + FrameStyle.arg(Brass.name()));
  // As much as is there, where a style would ask for more.
  const int Title = Frame->fontMetrics().horizontalAdvance(Caption) + 14;
  Frame->setMinimumWidth(qMax(Title, Places->totalMinimumSize().width()));
  return Frame;
}

}  // namespace

frmNewGame::frmNewGame(Desktop& Screen, const IniInfo& Info, const GameSettings& Options, QWidget* Main)
    : PlacedDialog(Main, "frmNewGame", " Start New Game - Tollmoor Blunko"),
      desktop(Screen),
      info(Info),
      settings(Options) {
  setFont(FontOf(Typeface::Verdana, 11));
  auto* Outer = new QVBoxLayout(this);
  Outer->setContentsMargins(Margin, Margin, Margin, Margin);
  Outer->setSpacing(Gap);
  Outer->addLayout(BuildChoices());
  Outer->addLayout(BuildSeats());
  Outer->addStretch(1);
  Outer->addLayout(BuildButtons());
  setStyleSheet(PaperStyle());
}

QLayout* frmNewGame::BuildChoices() {
  auto* Choices = new QHBoxLayout;
  Choices->setSpacing(Gap);
  Choices->addWidget(MakeChoice(this, "Number of Players:", optNumPlayers, "optNumPlayers",
                                {"One", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight"}, 4),
                     1);
  Choices->addWidget(MakeChoice(this, "Play to:", optPlayTo, "optPlayTo", {"5000", "10000"}, 1));
  Choices->addWidget(MakeChoice(this, "\"Break In\" Score:", optBreakIn, "optBreakIn", {"500", "1000"}, 1));
  for (int i = 0; i < MaxSeats; ++i) {
    connect(optNumPlayers[i], &QRadioButton::toggled, this, [this, i](bool On) {
      if (On) optNumPlayers_Click(i);
    });
  }
  return Choices;
}

QLayout* frmNewGame::BuildSeats() {
  auto* Seats = new QGridLayout;
  Seats->setHorizontalSpacing(8);
  Seats->setVerticalSpacing(SeatGap);
  Seats->setColumnStretch(0, 1);
  const QString Headings[] = {"Name", "Computer Player?", "Computer Style"};
  for (int Column = 0; Column < 3; ++Column) {
    Seats->addWidget(MakeText(this, QStringLiteral("lblHeading%1").arg(Column), Headings[Column],
                              FontOf(Typeface::Verdana, 11, true), Qt::AlignLeft | Qt::AlignBottom),
                     0, Column);
  }
  for (int i = 0; i < MaxSeats; ++i) {
    BuildSeat(i);
    const std::initializer_list<QWidget*> Row{TxtPlayerName[i], chkComputer[i], cboStyle[i]};
    for (QWidget* Cell : Row) Cell->setFixedHeight(SeatPitch - SeatGap);
    Seats->addWidget(TxtPlayerName[i], i + 1, 0);
    Seats->addWidget(chkComputer[i], i + 1, 1, Qt::AlignCenter);
    Seats->addWidget(cboStyle[i], i + 1, 2);
  }
  Seats->setColumnMinimumWidth(2, cboStyle[0]->sizeHint().width());
  return Seats;
}

void frmNewGame::BuildSeat(int Index) {
  const QString Number = QString::number(Index);
  QLineEdit* Name = TxtPlayerName[Index] = Make<QLineEdit>(this, "TxtPlayerName" + Number);
  Name->setMaxLength(LongestName);  // a letter more in its midst is refused, the validator would drop the last one
  Name->setValidator(new NameValidator(Name, LongestName));
  Name->installEventFilter(this);
  chkComputer[Index] = Make<QCheckBox>(this, "chkComputer" + Number);
  cboStyle[Index] = Make<QComboBox>(this, "cboStyle" + Number);
  for (const std::string_view Word : StyleWords) {
    cboStyle[Index]->addItem(QString::fromLatin1(Word.data(), static_cast<qsizetype>(Word.size())));
  }
  cboStyle[Index]->view()->resize(0, 0);  // or its rows, which nobody sees, would say that they are there
  connect(cboStyle[Index], &QComboBox::textActivated, this, &frmNewGame::told);
  connect(Name, &QLineEdit::textChanged, this, [this, Index] { DescribeSeat(Index); });
  connect(chkComputer[Index], &QCheckBox::toggled, this, [this, Index] { chkComputer_Click(Index); });
}

/// What a screen reader calls the three controls of a seat, whose headings it doesn't see: "Style of seat 3, Ann".
void frmNewGame::DescribeSeat(int Index) {
  const QString Seat = QStringLiteral("seat %1").arg(Index + 1), Name = TxtPlayerName[Index]->text();
  const QString WithName = Name.isEmpty() ? Seat : Seat + ", " + Name;
  TxtPlayerName[Index]->setAccessibleName("Name of " + Seat);
  chkComputer[Index]->setAccessibleName("Computer player in " + WithName);
  cboStyle[Index]->setAccessibleName("Style of " + WithName);
  cboStyle[Index]->setAccessibleDescription("Style of " + WithName);  // where a list's name is what is chosen in it
}

QLayout* frmNewGame::BuildButtons() {
  cmdPlay = MakeButton(this, "cmdPlay", "Play !!!", &QDialog::accept);
  cmdCancel = MakeButton(this, "cmdCancel", "Cancel", &QDialog::reject);
  cmdSetDefault = MakeButton(this, "cmdSetDefault", "Save Game Setup as Default", &frmNewGame::cmdSetDefault_Click);
  cmdSetDefault->setToolTip(
      " Click here to make Tollmoor Blunko always start with this game setup (same players and scoring options.) ");
  SetFirst(cmdPlay);
  auto* Buttons = new QHBoxLayout;
  Buttons->setSpacing(Gap);
  for (ButtonPlus* Button : {cmdPlay, cmdCancel, cmdSetDefault}) {
    Button->setFont(font());
    Buttons->addWidget(Button, Button == cmdSetDefault ? 2 : 1);
  }
  return Buttons;
}

std::optional<GameSetup> frmNewGame::ShowModal(std::string& FormMessage) {
  const std::string Word = FormMessage;
  const bool Restarts = Word == "SameGame" || Word == "RestartGame";
  if (Restarts) FormMessage.clear();
  if (Word == "SameGame" && lastGame) return lastGame;
  if (!loaded) Form_Load();
  Form_Activate();
  if (!Restarts && exec() != QDialog::Accepted) {
    Unload();
    return std::nullopt;
  }
  return lastGame = ShownSetup();
}

void frmNewGame::Form_Load() {
  loaded = true;
  desktop.Beep();
  optNumPlayers[0]->setChecked(true);
  optNumPlayers_Click(0);
}

/// The dialog always opens with the saved game, not with the last one.
void frmNewGame::Form_Activate() {
  const GameSetup Saved = ReadSetup(info, settings);
  optPlayTo[Saved.PlayToScore == 10000]->setChecked(true);
  optBreakIn[Saved.BreakInScore != 500]->setChecked(true);
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

void frmNewGame::Place() { PlaceFrame(*this, FramePlace(*parentWidget()).topLeft() + Offset); }

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
  const int Seats = qMax(Index + 1, 2);
  const QSize Needed = layout()->minimumSize();
  FixSize(*this, {qMax(InnerWidth, Needed.width()), qMax(SmallestHeight + SeatPitch * (Seats - 2), Needed.height())});
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
  desktop.Sleep(FeedbackTime);
  cmdSetDefault->setText(QStringLiteral("Done..."));
  desktop.Beep();
  desktop.Sleep(FeedbackTime);
  cmdSetDefault->setText(Caption);
}

}  // namespace blunko
