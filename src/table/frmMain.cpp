#include "table/frmMain.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "engine/ScoreDice.h"
#include "storage/FileAccess.h"
#include "storage/GameSettings.h"
#include "table/JpegCheck.h"
#include "table/KeyCodes.h"
#include "widgets/Fonts.h"
#include "widgets/FormBuilder.h"
#include "widgets/PlacedDialog.h"
#include "widgets/Twips.h"

namespace blunko {

namespace {

// All in twips.
constexpr int WindowWidth = 5865, WindowHeight = 7695;
constexpr int TableWidth = 5895;
constexpr int TrayLeft = 195, TrayWidth = 5470, TrayHeight = 945;
constexpr int Tray1Top = 435, Tray2Top = 1380;
constexpr int SampleTop = 1410;
constexpr int DieTop = 45, DieSide = 816;
constexpr std::array<int, 6> MarkerLeft{603, 1503, 2388, 3288, 4188, 5073};
constexpr int MarkerTop = 300, MarkerSide = 75;
constexpr int DividerTop = 120, DividerWidth = 75, DividerHeight = 870;

/// Draws one of the numbered bitmaps in its top left corner.
class BitmapBox : public QWidget {
 public:
  BitmapBox(int Number, Bitmaps& Pictures, QWidget* Parent) : QWidget(Parent), number(Number), bitmaps(Pictures) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).drawPixmap(0, 0, bitmaps.Get(number, devicePixelRatioF())); }

 private:
  int number;
  Bitmaps& bitmaps;
};

QColor OfBgr(std::uint32_t Colour) { return QColor(Colour & 0xFF, (Colour >> 8) & 0xFF, (Colour >> 16) & 0xFF); }

}  // namespace

frmMain::frmMain(Game& Table, Dress Clothes) : QWidget(nullptr, Qt::Window), Wears(std::move(Clothes)), game(Table) {
  setObjectName(QStringLiteral("frmMain"));
  setWindowTitle(QStringLiteral(" Tollmoor Blunko"));
  setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                 Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
  setFocusPolicy(Qt::ClickFocus);  // keys work without a control; Tab stops on what is seen
  PlaceTrays();
  PlaceButtons();
  PlaceLabels();
  BuildMenus();
  ConnectControls();
  OrderTabStops();
  setFixedSize(Pixels(WindowWidth), Pixels(WindowHeight));
  FixButtonColours(*this);
}

void frmMain::PlaceTrays() {
  picGameTray = Placed(Make<QWidget>(this, QStringLiteral("picGameTray")), TwipsRect(0, 0, TableWidth, 7725));
  picGameTray->setAutoFillBackground(true);
  // A little wider than the window. The shipped pictures have just twice this size, in which they are quickly decoded.
  Image1 =
      Placed(Make<StretchedPicture>(picGameTray, QStringLiteral("Image1")), TwipsRect(0, 0, TableWidth, WindowHeight));
  ShowBackground(Wears.Background);
  const auto Tray = [this](const QString& Name, int Top, bool HasTrayAbove) {
    return Placed(Make<DiceTray>(picGameTray, Name, HasTrayAbove), TwipsRect(TrayLeft, Top, TrayWidth, TrayHeight));
  };
  picTray1 = Tray(QStringLiteral("picTray1"), Tray1Top, false);
  picTray2 = Tray(QStringLiteral("picTray2"), Tray2Top, true);
  SetName(*picGameTray, QStringLiteral("Table"));
  SetName(*picTray1, QStringLiteral("Dice on the table"));
  SetName(*picTray2, QStringLiteral("Dice set aside"));
  for (int i = 0; i < 6; ++i) {
    for (const int Index : {i, 10 + i}) {
      auto* Box = Make<DieBox>(Index < 10 ? picTray1 : picTray2, QStringLiteral("Picture1(%1)").arg(Index), Index,
                               std::ref(Pictures));
      Picture1[Index < 10 ? i : 6 + i] = Placed(Box, TwipsRect(DieBoxLeft[i], DieTop, DieSide, DieSide));
    }
    auto* Mark = Make<BitmapBox>(picGameTray, QStringLiteral("picMarker(%1)").arg(i), MarkerBitmap, std::ref(Pictures));
    SetName(*Mark, QStringLiteral("Mark over die %1").arg(i + 1));
    picMarker[i] = Placed(Mark, TwipsRect(MarkerLeft[i], MarkerTop, MarkerSide, MarkerSide));
  }
  pctDivider = Placed(Make<BitmapBox>(picTray2, QStringLiteral("pctDivider"), DividerBitmap, std::ref(Pictures)),
                      TwipsRect(0, DividerTop, DividerWidth, DividerHeight));
  SetName(*pctDivider, QStringLiteral("Divider"));
  picSampleDice = Tray(QStringLiteral("picSampleDice"), SampleTop, false);
  PlaceCover();
}

/// The words on the plate that covers the lower tray.
void frmMain::PlaceCover() {
  auto* lblSampleDice = MakeText(picSampleDice, QStringLiteral("lblSampleDice"), QStringLiteral("(Sample Dice)"),
                                 FontOf(Typeface::Verdana, 11.25, true));
  lblSampleDice->setAutoFillBackground(true);
  // Dark blue letters need a light ground on every set's colour.
  SetColours(*lblSampleDice, {{QPalette::Window, QColor(232, 238, 250)}, {QPalette::WindowText, QColor(0, 0, 128)}});
  Placed(lblSampleDice, QRect(picSampleDice->width() / 2 - 75, picSampleDice->height() / 2 - 13, 150, 26));
}

void frmMain::PlaceButtons() {
  const auto Add = [this](const char* Name, const QString& Caption, const QRect& Place) {
    return Placed(Make<ButtonPlus>(picGameTray, QLatin1String(Name), Caption), Place);
  };
  ARCmdNewGame = Add("ARCmdNewGame", QStringLiteral("New Game"), QRect(108, 162, 175, 37));
  cmdRoll = Add("cmdRoll", QStringLiteral("Roll Dice"), QRect(13, 162, 175, 37));
  cmdPassDice = Add("cmdPassDice", QStringLiteral("Pass Dice"), QRect(203, 162, 175, 37));
  for (ButtonPlus* Big : {ARCmdNewGame, cmdRoll, cmdPassDice}) Big->setFont(FontOf(Typeface::Verdana, 11.25, true));
  cmdOptions = Add("cmdOptions", QStringLiteral("Options"), QRect(13, 464, 115, 36));
  cmdHighRollers = Add("cmdHighRollers", QStringLiteral("High Rollers"), QRect(138, 464, 115, 36));
  cmdExit = Add("cmdExit", QStringLiteral("Exit"), QRect(263, 464, 115, 36));
}

void frmMain::PlaceLabels() {
  const auto Text = [this](const char* Name, const QString& Caption, QRect Place, double Points, bool Bold,
                           Qt::Alignment Side) {
    return Placed(MakeText<FitLabel>(picGameTray, QLatin1String(Name), Caption, FontOf(Typeface::Verdana, Points, Bold),
                                     Side | Qt::AlignVCenter),
                  Place);
  };
  lblStatus = Text("lblStatus", {}, QRect(5, Pixels(StatusTop), 381, 30), 15.75, false, Qt::AlignHCenter);
  lblLastRoll = Text("lblLastRoll", {}, QRect(5, 237, 381, 23), 11.25, true, Qt::AlignHCenter);
  Label1 = Text("Label1", QStringLiteral("Current Player:"), QRect(13, 300, 178, 26), 11.25, true, Qt::AlignRight);
  lblPlayer = Text("lblPlayer", {}, QRect(200, 300, 180, 26), 11.25, true, Qt::AlignLeft);
  lblTurnScoreLabel = Text("lblTurnScoreLabel", QStringLiteral("Score This Turn:"), QRect(13, 330, 178, 26), 11.25,
                           true, Qt::AlignRight);
  lblTurnScore = Text("lblTurnScore", {}, QRect(200, 330, 180, 26), 11.25, true, Qt::AlignLeft);
  for (FitLabel* Score : {Label1, lblPlayer, lblTurnScoreLabel, lblTurnScore}) {
    Score->setAttribute(Qt::WA_TransparentForMouseEvents);
  }
  const auto MenuWord = [this](const char* Name, const QString& Caption, const QRect& Place) {
    auto* Made = Placed(Make<WordButton>(picGameTray, QLatin1String(Name), Caption), Place);
    Made->setFont(FontOf(Typeface::Verdana, 8.25));
    return Made;
  };
  lblMnuGame = MenuWord("lblMnuGame", QStringLiteral("Game"), QRect(6, 0, 50, 20));
  lblMnuHelp = MenuWord("lblMnuHelp", QStringLiteral("Help"), QRect(58, 0, 44, 20));
}

void frmMain::BuildMenus() {
  const auto Entry = [this](QMenu* Menu, const char* Name, const QString& Caption, auto Run) {
    QAction* Made = Menu->addAction(Caption);
    Made->setObjectName(QLatin1String(Name));
    connect(Made, &QAction::triggered, this, Run);
  };
  mnuGame = new QMenu(this);
  mnuGame->setObjectName(QStringLiteral("mnuGame"));
  Entry(mnuGame, "mnuNewGame", QStringLiteral("&New Game  (F2)"),
        [this] { Handle([this] { game.PersonBeginsGame(); }); });
  Entry(mnuGame, "mnuOptions", QStringLiteral("&Options..."), [this] { Ask(&frmMain::optionsAsked); });
  mnuGame->addSeparator()->setObjectName(QStringLiteral("mnuSep1"));
  Entry(mnuGame, "mnuExit", QStringLiteral("&Exit"), [this] { Handle([this] { game.PersonCloses(); }); });
  mnuHelpMe = new QMenu(this);
  mnuHelpMe->setObjectName(QStringLiteral("mnuHelpMe"));
  Entry(mnuHelpMe, "mnuHowToPlay", QStringLiteral("How to Play..."), [this] { Ask(&frmMain::howToPlayAsked); });
  Entry(mnuHelpMe, "mnuGoHelp", QStringLiteral("&Show Tollmoor Blunko Help..."), [this] { Ask(&frmMain::helpAsked); });
  mnuHelpMe->addSeparator()->setObjectName(QStringLiteral("mnuSep99"));
  Entry(mnuHelpMe, "mnuAbout", QStringLiteral("About Tollmoor Blunko..."), [this] { Ask(&frmMain::aboutAsked); });
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
  connect(cmdRoll, &QPushButton::clicked, this, [this] { Handle([this] { game.PersonRolls(); }); });
  connect(cmdPassDice, &QPushButton::clicked, this, [this] { Handle([this] { game.PersonPasses(); }); });
  connect(ARCmdNewGame, &QPushButton::clicked, this, [this] { Handle([this] { game.ARCmdNewGame_Click(); }); });
  connect(cmdExit, &QPushButton::clicked, this, [this] { Handle([this] { game.PersonCloses(); }); });
  connect(cmdOptions, &QPushButton::clicked, this, [this] { Ask(&frmMain::optionsAsked); });
  connect(cmdHighRollers, &QPushButton::clicked, this, [this] { Ask(&frmMain::highRollersAsked); });
  for (const auto& [Word, Menu] : {std::pair(lblMnuGame, mnuGame), {lblMnuHelp, mnuHelpMe}}) {
    connect(Word, &QPushButton::clicked, this,
            [Word = Word, Menu = Menu] { Menu->popup(Word->mapToGlobal(QPoint(0, Word->height()))); });
    // What the menu opens may keep the word from hearing that the mouse has left it.
    connect(Menu, &QMenu::aboutToHide, Word, [Word = Word] {
      Word->setAttribute(Qt::WA_UnderMouse, Word->rect().contains(Word->mapFromGlobal(QCursor::pos())));
      Word->update();
    });
  }
}

/// A command that isn't one of the game's own goes through the game's gate as well.
void frmMain::Ask(void (frmMain::*Signal)()) {
  Handle([=, this] { game.Command([=, this] { emit(this->*Signal)(); }); });
}

void frmMain::ShowControls() {
  const TableControls& t = game.t;
  for (QWidget* Panel : std::initializer_list<QWidget*>{picGameTray, lblMnuGame, lblMnuHelp}) {
    Panel->setEnabled(t.picGameTray.Enabled);
  }
  Show(ARCmdNewGame, t.ARCmdNewGame);
  Show(cmdRoll, t.cmdRoll);
  Show(cmdPassDice, t.cmdPassDice);
  EnableTray(picTray1, t.picTray1.Enabled);
  EnableTray(picTray2, t.picTray2.Enabled);
  const bool PersonPlays = game.PersonMayPlay() && !t.Rolling;
  for (int i = 0; i < 6; ++i) {
    ShowDie(i, Wears.SampleSet == 0 ? t.Picture1(i) : Wears.SampleSet + i + 1);
    ShowDie(6 + i, t.Picture1(10 + i));
    Picture1[i]->setTakeable(PersonPlays && game.CanTake(i));
    Picture1[6 + i]->setTakeable(PersonPlays && game.CanTake(10 + i));
    Picture1[i]->setPale(t.Busted && !Wears.Covered);
    picMarker[i]->setVisible(t.picMarker[i] && !Wears.Covered);
  }
  pctDivider->move(Pixels(t.pctDivider.Left), pctDivider->y());
  pctDivider->setVisible(t.pctDivider.Visible);
  lblStatus->setLoud(t.lblStatus.Loud);
  Show(lblStatus, t.lblStatus.Caption, t.lblStatus.Visible, Pixels(t.lblStatus.Top));
  Show(lblLastRoll, t.lblLastRoll.Caption, t.lblLastRoll.Visible, lblLastRoll->y());
  Show(lblPlayer, t.lblPlayer.Caption, t.lblPlayer.Visible, lblPlayer->y());
  Show(lblTurnScore, t.lblTurnScore.Caption, t.lblTurnScore.Visible, lblTurnScore->y());
  DrawDress();
  DescribeDice();
  // The handlers may not return to the event loop for a while: what was marked for painting is painted now.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
}

void frmMain::Show(ButtonPlus* Widget, const Button& Control) {
  const bool Usable = Control.Enabled && Control.Visible;
  // A button that goes off hands the focus to the table, not to the button that happens to come next; also while a
  // dialog is active.
  if (!Usable && focusWidget() == Widget) {
    setFocus();
    rollHadFocus = Widget == cmdRoll;
  }
  Widget->setEnabled(Control.Enabled);
  Widget->setVisible(Control.Visible);
  if (Widget == cmdRoll && Widget->isEnabled() && std::exchange(rollHadFocus, false) && focusWidget() == this) {
    Widget->setFocus();
  }
}

void frmMain::Show(FitLabel* Widget, const std::string& Caption, bool Visible, int Top) {
  const auto IsBlank = [Widget] { return Widget->text().trimmed().isEmpty(); };
  const bool WasBlank = IsBlank();
  Widget->setText(QString::fromStdString(Caption));
  Widget->setVisible(Visible);
  if (Visible && IsBlank() != WasBlank) {  // to a listener an empty text isn't there
    QAccessibleEvent Event(Widget, WasBlank ? QAccessible::ObjectShow : QAccessible::ObjectHide);
    QAccessible::updateAccessibility(&Event);
  }
  Widget->move(Widget->x(), Top);
}

/// What a screen reader says of the dice: "Die 3: five, scores".
void frmMain::DescribeDice() {
  static const char* const Faces[] = {"", "one", "two", "three", "four", "five", "six"};
  if (game.t.Rolling) return;
  const Module1& m = game.m;
  for (std::size_t i = 0; i < described.size(); ++i) {
    const bool OnTable = i < 6;
    const int Face = OnTable ? m.ShownFace[i] : m.TrayFace[i - 6];
    const bool Counts = OnTable ? m.DieUp[i] && IsScorer(m.DieScoreCode[i]) : game.CanTake(static_cast<int>(i) + 4);
    if (std::exchange(described[i], {Face, Counts}) == std::pair(Face, Counts)) continue;
    QString Name = QStringLiteral("%1 %2: %3").arg(OnTable ? "Die" : "Tray").arg(i % 6 + 1).arg(Faces[Face]);
    if (Counts) Name += OnTable ? ", scores" : ", can be taken back";
    if (Face != 0) SetName(*Picture1[i], Name);  // an empty box isn't there
  }
}

/// Dice that go off with their tray hand the focus to the table, not to the button that happens to come next.
void frmMain::EnableTray(DiceTray* Tray, bool Enabled) {
  if (!Enabled && Tray->isAncestorOf(focusWidget())) setFocus();
  Tray->setEnabled(Enabled);
}

/// A die that goes hands the focus to the table.
void frmMain::ShowDie(std::size_t Box, int Picture) {
  if (Picture == 0 && focusWidget() == Picture1[Box]) {
    setFocus();
    focusedRow = Box < 6 ? 0 : 6;
  }
  Picture1[Box]->setPicture(Picture);
}

/// When the handler has done with the dice, the focus is again where it was among them: on the first one that is left.
void frmMain::KeepFocusOnDice() {
  if (!focusedRow) return;
  const auto Row = Picture1.begin() + *std::exchange(focusedRow, std::nullopt);
  const auto First = std::find_if(Row, Row + 6, [](DieBox* Box) { return Box->Picture() != 0 && Box->isEnabled(); });
  if (First != Row + 6 && focusWidget() == this) (*First)->setFocus();
}

/// As the eye goes: from the menus over the dice to the buttons.
void frmMain::OrderTabStops() {
  std::vector<QWidget*> Order{lblMnuGame, lblMnuHelp};
  Order.insert(Order.end(), Picture1.begin(), Picture1.end());
  Order.insert(Order.end(), {ARCmdNewGame, cmdRoll, cmdPassDice, cmdOptions, cmdHighRollers, cmdExit});
  for (std::size_t i = 1; i < Order.size(); ++i) setTabOrder(Order[i - 1], Order[i]);
}

/// The picture of a path; none for "(None)", and for a file that is no picture or costs too much.
void frmMain::ShowBackground(const QString& Path) {
  if (std::exchange(background, Path) == Path) return;
  const bool Shown = Path != NoBackground && IsModestJpeg(ReadWholeFile(Path, LargestJpeg).value_or(QByteArray()));
  Image1->Load(Shown ? Path : QString());
  // On the bare table some dice lie where the pictures have their motif.
  if (!Shown && picLooseDice == nullptr) {
    picLooseDice = Make<SvgBox>(picGameTray, QStringLiteral("picLooseDice"), QStringLiteral(":/art/welcome.svg"));
    Placed(picLooseDice, QRect({15, 362}, picLooseDice->sizeHint()));
  }
  if (picLooseDice != nullptr) picLooseDice->setVisible(!Shown);
}

void frmMain::DrawDress() {
  if (drawn == Wears) return;
  for (DiceTray* Tray : {picTray1, picTray2}) Tray->setBackColor(Wears.Trays);
  picSampleDice->setBackColor(Wears.Cover);
  picSampleDice->setVisible(Wears.Covered);
  ShowBackground(Wears.Background);
  for (FitLabel* Label : picGameTray->findChildren<FitLabel*>(Qt::FindDirectChildrenOnly)) {
    Label->setForeColor(OfBgr(Wears.TextColour));
  }
  for (WordButton* Menu : {lblMnuGame, lblMnuHelp}) Menu->setForeColor(OfBgr(Wears.TextColour));
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
    Ask(&frmMain::scorePadAsked);
  }
}

bool frmMain::event(QEvent* Event) {
  if (Event->type() == QEvent::WindowBlocked) ShowControls();  // behind a dialog the table stands as the game has it
  return QWidget::event(Event);
}

void frmMain::showEvent(QShowEvent* Event) {
  QWidget::showEvent(Event);
  if (activatedBefore) return;
  activatedBefore = true;
  ARCmdNewGame->setFocus();
  QTimer::singleShot(0, this, [this] { Ask(&frmMain::firstShown); });
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
  if (Event->type() == QEvent::ActivationChange) keysDown.clear();
}

void frmMain::keyPressEvent(QKeyEvent* Event) {
  if (!Event->isAutoRepeat()) keysDown[Event->key()] = ShiftMaskOf(*Event);
  QWidget::keyPressEvent(Event);
}

void frmMain::keyReleaseEvent(QKeyEvent* Event) {
  // A key that was pressed in a dialog, now closed, is no command here; nor is a key held down.
  const auto Pressed = keysDown.find(Event->key());
  if (Event->isAutoRepeat() || Pressed == keysDown.end()) {
    QWidget::keyReleaseEvent(Event);
    return;
  }
  const std::int16_t Code = KeyCodeOf(*Event);
  const std::int16_t Shift = Pressed->second;  // also when Shift was let go first
  keysDown.erase(Pressed);
  Handle([=, this] { game.Form_KeyUp(Code, Shift); });
}

}  // namespace blunko
