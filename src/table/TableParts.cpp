#include "table/TableParts.h"

#include <QMenu>
#include <QPainter>

#include "engine/TableControls.h"
#include "widgets/Fonts.h"
#include "widgets/FormBuilder.h"
#include "widgets/Materials.h"

namespace blunko {

namespace {

constexpr std::array<int, 6> MarkerLeft{40, 100, 159, 219, 279, 338};  // px

/// Draws one of the numbered bitmaps in its top left corner, smaller where it has no room.
class BitmapBox : public QWidget {
 public:
  BitmapBox(int Number, Bitmaps& Pictures, QWidget* Parent) : QWidget(Parent), number(Number), bitmaps(Pictures) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const QPixmap& Picture = bitmaps.Get(number, devicePixelRatioF());
    QPainter(this).drawPixmap(QRectF(QPointF(), Picture.deviceIndependentSize().boundedTo(size())), Picture,
                              Picture.rect());
  }

 private:
  int number;
  Bitmaps& bitmaps;
};

/// The frame of the trays.
class FrameBox : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    if (drawn.devicePixelRatio() != devicePixelRatioF() || drawn.isNull()) drawn = TrayFrame(devicePixelRatioF());
    QPainter(this).drawPixmap(0, 0, drawn);
  }

 private:
  QPixmap drawn;
};

}  // namespace

TableParts::TableParts() : QWidget(nullptr, Qt::Window) {
  setObjectName(QStringLiteral("frmMain"));
  setWindowTitle(QStringLiteral(" Tollmoor Blunko"));
  setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                 Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
  setFocusPolicy(Qt::ClickFocus);  // keys work without a control; Tab stops on what is seen
  setFixedSize(391, 513);
  PlaceTrays();
}

void TableParts::PlaceRest() {
  PlaceButtons();
  PlaceLabels();
  BuildMenus();
}

void TableParts::PlaceTrays() {
  picGameTray = Placed(Make<QWidget>(this, QStringLiteral("picGameTray")), QRect(0, 0, 393, 515));
  picGameTray->setAutoFillBackground(true);
  // A little wider than the window. The shipped pictures have just twice this size, in which they are quickly decoded.
  Image1 = Placed(Make<StretchedPicture>(picGameTray, QStringLiteral("Image1")), QRect(0, 0, 393, 513));
  Placed(Make<FrameBox>(picGameTray, QStringLiteral("picTrayFrame")), QRect(0, 0, 391, 200));
  const auto Tray = [this](const QString& Name, int Top, int Sunk) {
    return Placed(Make<DiceTray>(picGameTray, Name, Sunk), QRect(13, Top, 365, 63));
  };
  picTray1 = Tray(QStringLiteral("picTray1"), 29, 0);
  picTray2 = Tray(QStringLiteral("picTray2"), 92, 0);
  SetName(*picGameTray, QStringLiteral("Table"));
  SetName(*picTray1, QStringLiteral("Dice on the table"));
  SetName(*picTray2, QStringLiteral("Dice set aside"));
  for (int i = 0; i < 6; ++i) {
    for (const int Index : {i, 10 + i}) {
      auto* Box =
          Make<DieBox>(Index < 10 ? picTray1 : picTray2, QStringLiteral("Picture1(%1)").arg(Index), Index, Pictures);
      Picture1[Index < 10 ? i : 6 + i] = Placed(Box, QRect(Pixels(DieBoxLeft[i]), 3, 54, 54));
    }
    const auto Mark = [&](const QString& Name, int Bitmap, const QRect& Place) {
      return Placed(Make<BitmapBox>(picGameTray, Name.arg(i), Bitmap, Pictures), Place);
    };
    picLamp[i] = Mark("picLamp(%1)", LampBitmap, QRect(MarkerLeft[i] - 21, 12, 45, 44));
    picMarker[i] = Mark("picMarker(%1)", MarkerBitmap, QRect(MarkerLeft[i], 20, 3, 3));
    SetName(*picMarker[i], QStringLiteral("Mark over die %1").arg(i + 1));
  }
  pctDivider =
      Placed(Make<BitmapBox>(picTray2, QStringLiteral("pctDivider"), DividerBitmap, Pictures), QRect(0, 8, 5, 58));
  SetName(*pctDivider, QStringLiteral("Divider"));
  picSampleDice = Tray(QStringLiteral("picSampleDice"), 94, 2);
  PlaceCover();
}

/// The words on the plate that covers the lower tray.
void TableParts::PlaceCover() {
  auto* lblSampleDice = MakeText(picSampleDice, QStringLiteral("lblSampleDice"), QStringLiteral("(Sample Dice)"),
                                 FontOf(Typeface::Verdana, 15, true));
  // Dark blue letters need a light ground on every set's colour.
  lblSampleDice->setStyleSheet(QStringLiteral("background: %1; color: %2; border: 1px solid %3; border-radius: 3px;")
                                   .arg(Paper.name(), PaperInk.name(), Brass.name()));
  Placed(lblSampleDice, QRect(105, 11, 150, 26));
}

void TableParts::PlaceButtons() {
  const auto Add = [this](const char* Name, const QString& Caption, const QRect& Place) {
    return Placed(Make<ButtonPlus>(picGameTray, QLatin1String(Name), Caption), Place);
  };
  ARCmdNewGame = Add("ARCmdNewGame", QStringLiteral("New Game"), QRect(108, 163, 175, 37));
  cmdRoll = Add("cmdRoll", QStringLiteral("Roll Dice"), QRect(12, 163, 175, 37));
  cmdPassDice = Add("cmdPassDice", QStringLiteral("Pass Dice"), QRect(204, 163, 175, 37));
  for (ButtonPlus* Big : {ARCmdNewGame, cmdRoll, cmdPassDice}) {
    Big->setFont(FontOf(Typeface::Verdana, 15, true));
    Big->setHero();
  }
  cmdOptions = Add("cmdOptions", QStringLiteral("Options"), QRect(12, 464, 115, 36));
  cmdHighRollers = Add("cmdHighRollers", QStringLiteral("High Rollers"), QRect(138, 464, 115, 36));
  cmdExit = Add("cmdExit", QStringLiteral("Exit"), QRect(264, 464, 115, 36));
}

void TableParts::PlaceLabels() {
  const auto Text = [this](const char* Name, const QString& Caption, QRect Place, int Size, bool Bold,
                           Qt::Alignment Side) {
    auto* Made = MakeText<FitLabel>(picGameTray, QLatin1String(Name), Caption, FontOf(Typeface::Verdana, Size, Bold),
                                    Side | Qt::AlignVCenter);
    Made->setPicture(Image1);
    return Placed(Made, Place);
  };
  lblStatus = Text("lblStatus", {}, QRect(5, Pixels(StatusTop), 381, 30), 21, false, Qt::AlignHCenter);
  lblLastRoll = Text("lblLastRoll", {}, QRect(5, 237, 381, 23), 15, true, Qt::AlignHCenter);
  Label1 = Text("Label1", QStringLiteral("Current Player:"), QRect(13, 300, 178, 26), 15, true, Qt::AlignRight);
  lblPlayer = Text("lblPlayer", {}, QRect(200, 300, 180, 26), 15, true, Qt::AlignLeft);
  lblTurnScoreLabel =
      Text("lblTurnScoreLabel", QStringLiteral("Score This Turn:"), QRect(13, 330, 178, 26), 15, true, Qt::AlignRight);
  lblTurnScore = Text("lblTurnScore", {}, QRect(200, 330, 180, 26), 15, true, Qt::AlignLeft);
  for (FitLabel* Score : {Label1, lblPlayer, lblTurnScoreLabel, lblTurnScore}) {
    Score->setAttribute(Qt::WA_TransparentForMouseEvents);
  }
  const auto MenuWord = [this](const char* Name, const QString& Caption, const QRect& Place) {
    auto* Made = Placed(Make<WordButton>(picGameTray, QLatin1String(Name), Caption), Place);
    Made->setFont(FontOf(Typeface::Verdana, 11));
    Made->setPicture(Image1);
    return Made;
  };
  lblMnuGame = MenuWord("lblMnuGame", QStringLiteral("Game"), QRect(6, 0, 50, 20));
  lblMnuHelp = MenuWord("lblMnuHelp", QStringLiteral("Help"), QRect(58, 0, 44, 20));
}

/// A menu that pops up under its word.
QMenu* TableParts::MenuUnder(WordButton* Word, const char* Name) {
  auto* Menu = new QMenu(this);
  Menu->setObjectName(QLatin1String(Name));
  connect(Word, &QPushButton::clicked, this, [=] { Menu->popup(Word->mapToGlobal(QPoint(0, Word->height()))); });
  // What the menu opens may keep the word from hearing that the mouse has left it.
  connect(Menu, &QMenu::aboutToHide, Word, [Word] {
    Word->setAttribute(Qt::WA_UnderMouse, Word->rect().contains(Word->mapFromGlobal(QCursor::pos())));
    Word->update();
  });
  return Menu;
}

void TableParts::BuildMenus() {
  const auto Entry = [](QMenu* Menu, const char* Name, const QString& Caption) {
    QAction* Made = Menu->addAction(Caption);
    Made->setObjectName(QLatin1String(Name));
    return Made;
  };
  mnuGame = MenuUnder(lblMnuGame, "mnuGame");
  mnuNewGame = Entry(mnuGame, "mnuNewGame", QStringLiteral("&New Game  (F2)"));
  mnuOptions = Entry(mnuGame, "mnuOptions", QStringLiteral("&Options..."));
  mnuGame->addSeparator()->setObjectName(QStringLiteral("mnuSep1"));
  mnuExit = Entry(mnuGame, "mnuExit", QStringLiteral("&Exit"));
  mnuHelpMe = MenuUnder(lblMnuHelp, "mnuHelpMe");
  mnuHowToPlay = Entry(mnuHelpMe, "mnuHowToPlay", QStringLiteral("How to Play..."));
  mnuGoHelp = Entry(mnuHelpMe, "mnuGoHelp", QStringLiteral("&Show Tollmoor Blunko Help..."));
  mnuHelpMe->addSeparator()->setObjectName(QStringLiteral("mnuSep99"));
  mnuAbout = Entry(mnuHelpMe, "mnuAbout", QStringLiteral("About Tollmoor Blunko..."));
}

}  // namespace blunko
