#include "table/frmMain.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>

#include <utility>

#include "storage/GameSettings.h"
#include "table/KeyEvents.h"
#include "widgets/Fonts.h"
#include "widgets/FormBuilder.h"
#include "widgets/HeldKeys.h"
#include "widgets/PlacedDialog.h"

namespace blunko {

namespace {

QColor OfBgr(std::uint32_t Colour) { return QColor(Colour & 0xFF, (Colour >> 8) & 0xFF, (Colour >> 16) & 0xFF); }

}  // namespace

frmMain::frmMain(Game& Table, Dress Clothes) : Wears(std::move(Clothes)), game(Table), focus(*this) {
  picGameTray->installEventFilter(this);
  ShowBackground();
  PlaceRest();
  focus.OrderTabStops();
  ConnectControls();
  ARCmdNewGame->setFocus();
}

void frmMain::ConnectControls() {
  for (DieBox* Box : Picture1) {
    connect(Box, &DieBox::mouseUp, this, [this](int Index, int Button) {
      Handle([=, this] { game.PersonClicksDie(static_cast<std::int16_t>(Index), static_cast<std::int16_t>(Button)); });
    });
  }
  for (DiceTray* Tray : {picTray1, picTray2}) {
    connect(Tray, &DiceTray::mouseUp, this, [this, Row = Tray == picTray1 ? 1 : 2](int Button) {
      Handle([=, this] { game.PersonClicksTray(Row, static_cast<std::int16_t>(Button)); });
    });
  }
  const auto On = [this](auto* Control, auto Signal, auto Run) {
    connect(Control, Signal, this, [=, this] { Handle(Run); });
  };
  const auto Ask = [this](void (frmMain::*Signal)()) {
    return [=, this] { game.Command([=, this] { emit(this->*Signal)(); }); };
  };
  const auto OpenOptions = [this] { game.cmdOptions_Click(); };
  const auto Close = [this] { game.PersonCloses(); };
  On(cmdRoll, &QPushButton::clicked, [this] { game.PersonRolls(); });
  On(cmdPassDice, &QPushButton::clicked, [this] { game.PersonPasses(); });
  On(ARCmdNewGame, &QPushButton::clicked, [this] { game.ARCmdNewGame_Click(); });
  On(cmdOptions, &QPushButton::clicked, OpenOptions);
  On(cmdHighRollers, &QPushButton::clicked, Ask(&frmMain::highRollersAsked));
  On(cmdExit, &QPushButton::clicked, Close);
  On(mnuNewGame, &QAction::triggered, [this] { game.PersonBeginsGame(); });
  On(mnuOptions, &QAction::triggered, OpenOptions);
  On(mnuExit, &QAction::triggered, Close);
  On(mnuHowToPlay, &QAction::triggered, Ask(&frmMain::howToPlayAsked));
  On(mnuGoHelp, &QAction::triggered, Ask(&frmMain::helpAsked));
  On(mnuAbout, &QAction::triggered, Ask(&frmMain::aboutAsked));
}

void frmMain::ShowControls() {
  const TableControls& t = game.t;
  for (QWidget* Panel : std::initializer_list<QWidget*>{picGameTray, lblMnuGame, lblMnuHelp}) {
    Panel->setEnabled(t.picGameTray.Enabled);
  }
  Show(ARCmdNewGame, t.ARCmdNewGame);
  Show(cmdRoll, t.cmdRoll);
  Show(cmdPassDice, t.cmdPassDice);
  for (const auto& [Tray, Enabled] : {std::pair(picTray1, t.picTray1.Enabled), {picTray2, t.picTray2.Enabled}}) {
    if (!Enabled) focus.Leave(Tray);
    Tray->setEnabled(Enabled);
  }
  const bool PersonPlays = game.PersonMayPlay() && !t.Rolling;
  for (int i = 0; i < 12; ++i) {
    const bool OnTable = i < 6;
    const int Index = OnTable ? i : 4 + i;
    const int Picture = OnTable && Wears.SampleSet != 0 ? Wears.SampleSet + i + 1 : t.Picture1(Index);
    if (Picture == 0) focus.Leave(Picture1[i]);
    Picture1[i]->setPicture(Picture);
    Picture1[i]->setTakeable(PersonPlays && game.CanTake(Index));
    Picture1[i]->setPale(OnTable && t.Busted && !Wears.Covered);
  }
  for (int i = 0; i < 6; ++i) {
    for (QWidget* Part : {picLamp[i], picMarker[i]}) Part->setVisible(t.picMarker[i] && !Wears.Covered);
  }
  pctDivider->move(Pixels(t.pctDivider.Left), pctDivider->y());
  pctDivider->setVisible(t.pctDivider.Visible);
  lblStatus->move(lblStatus->x(), Pixels(t.lblStatus.Top));
  Show(lblStatus, t.lblStatus);
  Show(lblLastRoll, t.lblLastRoll);
  Show(lblPlayer, t.lblPlayer);
  Show(lblTurnScore, t.lblTurnScore);
  DrawDress();
  DescribeDice();
  // The handlers may not return to the event loop for a while: what was marked for painting is painted now.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
}

void frmMain::Show(ButtonPlus* Widget, const Button& Control) {
  if (!Control.Enabled || !Control.Visible) focus.Leave(Widget);
  Widget->setEnabled(Control.Enabled);
  Widget->setVisible(Control.Visible);
}

void frmMain::Show(FitLabel* Widget, const Label& Control) {
  Widget->setText(QString::fromStdString(Control.Caption));
  Widget->setVisible(Control.Visible);
  Widget->setLoud(Control.Loud);
}

/// What a screen reader says of the dice: "Die 3: five, scores".
void frmMain::DescribeDice() {
  static const char* const Faces[] = {"", "one", "two", "three", "four", "five", "six"};
  if (game.t.Rolling) return;
  const Module1& m = game.m;
  for (std::size_t i = 0; i < Picture1.size(); ++i) {
    const bool OnTable = i < 6, Sample = OnTable && Wears.SampleSet != 0;
    const int Face = Sample ? static_cast<int>(i) + 1 : OnTable ? m.ShownFace[i] : m.TrayFace[i - 6];
    const bool Counts = !Sample && game.CanTake(static_cast<int>(OnTable ? i : i + 4));
    const char* const Row = Sample ? "Sample die" : OnTable ? "Die" : "Tray";
    QString Name = QStringLiteral("%1 %2: %3").arg(Row).arg(i % 6 + 1).arg(Faces[Face]);
    if (Counts) Name += OnTable ? ", scores" : ", can be taken back";
    if (Face != 0) SetName(*Picture1[i], Name);  // an empty box isn't there
  }
}

void frmMain::ShowBackground() { Image1->Load(Wears.Background == NoBackground ? QString() : Wears.Background); }

void frmMain::DrawDress() {
  if (drawn == Wears) return;
  for (DiceTray* Tray : {picTray1, picTray2}) Tray->setBackColor(Wears.Trays);
  picSampleDice->setBackColor(Wears.Cover);
  picSampleDice->setVisible(Wears.Covered);
  ShowBackground();
  const std::initializer_list<QWidget*> Texts{lblStatus,         lblLastRoll,  Label1,     lblPlayer,
                                              lblTurnScoreLabel, lblTurnScore, lblMnuGame, lblMnuHelp};
  for (QWidget* Text : Texts) SetColours(*Text, {{QPalette::WindowText, OfBgr(Wears.TextColour)}});
  drawn = Wears;
}

void frmMain::wheelEvent(QWheelEvent* Event) { ShiftOnLowScreen(*this, Event->angleDelta().y() / 2); }

bool frmMain::focusNextPrevChild(bool Next) {
  const bool Moved = QWidget::focusNextPrevChild(Next);
  ShowFocusOnLowScreen(*this);
  return Moved;
}

/// A click on what the table tells of the scores brings a score pad back that was closed.
void frmMain::mouseReleaseEvent(QMouseEvent* Event) {
  const QRect Scores = Label1->geometry() | lblTurnScore->geometry();
  const bool Counts = Event->button() == Qt::LeftButton && picGameTray->isEnabled();
  if (Counts && Scores.contains(picGameTray->mapFrom(this, Event->position().toPoint()))) {
    Command([this] { emit scorePadAsked(); });
  }
}

bool frmMain::event(QEvent* Event) {
  if (Event->type() == QEvent::WindowBlocked) ShowControls();  // behind a dialog the table stands as the game has it
  return QWidget::event(Event);
}

bool frmMain::eventFilter(QObject* Tray, QEvent* Event) {
  if (Event->type() == QEvent::Paint) {  // the first one: the window is there
    Tray->removeEventFilter(this);
    QTimer::singleShot(0, this, [this] { Command([this] { emit firstShown(); }); });
  }
  return QWidget::eventFilter(Tray, Event);
}

/// Wayland's compositors send sizes that nobody wanted, KWin the one before the options were opened; icewm any that a
/// tool asks for.
void frmMain::resizeEvent(QResizeEvent*) {
  if (isMaximized() || isFullScreen()) return;
  QTimer::singleShot(0, this, [this] { resize(minimumSize()); });
}

void frmMain::closeEvent(QCloseEvent* Event) {
  bool Goes = false;
  Handle([&] { Goes = game.PersonCloses(); });
  Event->setAccepted(Goes);
}

void frmMain::changeEvent(QEvent* Event) {
  QWidget::changeEvent(Event);
  if (Event->type() == QEvent::WindowStateChange) {
    const bool Before = static_cast<QWindowStateChangeEvent*>(Event)->oldState().testFlag(Qt::WindowMinimized);
    if (Before != isMinimized()) emit minimised();
  }
}

void frmMain::keyPressEvent(QKeyEvent* Event) {
  if (!Event->isAutoRepeat()) keysDown.insert(HeldKeys::PlaceOf(*Event));
  QWidget::keyPressEvent(Event);
}

/// A key that wasn't pressed here, but in a menu or for a button, is no command.
void frmMain::keyReleaseEvent(QKeyEvent* Event) {
  if (Event->isAutoRepeat() || keysDown.erase(HeldKeys::PlaceOf(*Event)) == 0) return QWidget::keyReleaseEvent(Event);
  Handle([this, Code = KeyCodeOf(*Event), Shift = ShiftMaskOf(*Event)] { game.Form_KeyUp(Code, Shift); });
}

}  // namespace blunko
