#include "app/frmCongrats.h"

#include <QEvent>
#include <QPalette>
#include <QTimer>

#include <utility>

#include "table/frmMain.h"
#include "widgets/Colours.h"
#include "widgets/Fonts.h"
#include "widgets/Twips.h"

namespace blunko {

namespace {

constexpr int EngravingTime = 500;  // ms
constexpr int GreetingTop = 8;      // px
const QColor PlateColour(0, 0, 128);

}  // namespace

frmCongrats::frmCongrats(Game& Table, frmMain& Main) : PlacedDialog(&Main), game(Table), main(Main) {
  setObjectName(QStringLiteral("frmCongrats"));
  const QString Winner = QString::fromStdString(game.m.PlayerName[game.m.Winner]);
  setWindowTitle(QStringLiteral("Congratulations %1 !!!").arg(Winner));
  QPalette Colours = palette();
  Colours.setColor(QPalette::Window, FormBlue);
  setPalette(Colours);
  setFixedSize(main.picGameTray->width(), main.height());

  Image2 = new SvgBox(QStringLiteral(":/art/trophy.svg"), this);
  Image2->setObjectName(QStringLiteral("Image2"));
  Image2->setGeometry(QRect(QPoint(0, 0), Image2->sizeHint()));
  Image1 = new SvgBox(QStringLiteral(":/art/greeting.svg"), this);
  Image1->setObjectName(QStringLiteral("Image1"));
  Image1->setGeometry(QRect(QPoint((width() - Image1->sizeHint().width()) / 2, GreetingTop), Image1->sizeHint()));

  lblWinner = new FitLabel(QStringLiteral("Engraving..."), this);
  lblWinner->setObjectName(QStringLiteral("lblWinner"));
  lblWinner->setGeometry(TwipsRect(1695, 6120, 2565, 375));
  lblWinner->setFont(FontOf(Typeface::ComicSans, 14.25, true));
  lblWinner->setAlignment(Qt::AlignCenter);
  lblWinner->setForeColor(Qt::yellow);
  QPalette Plate = lblWinner->palette();
  Plate.setColor(QPalette::Window, PlateColour);
  lblWinner->setPalette(Plate);
  lblWinner->setAutoFillBackground(true);

  const auto AddButton = [this](const char* Name, const QString& Caption, int Left, const char* Word, bool Beeps) {
    auto* Made = new ButtonPlus(Caption, this);
    Made->setObjectName(QLatin1String(Name));
    Made->setGeometry(TwipsRect(Left, 6990, 1695, 495));
    Made->setFont(FontOf(Typeface::Verdana, 8.25));  // the longest caption fits
    Made->setEnabled(false);
    connect(Made, &QPushButton::clicked, this, [this, Word, Beeps] {
      if (Beeps) game.desktop.Beep();
      game.m.FormMessage = Word;
      accept();
    });
    return Made;
  };
  cmdSameGame = AddButton("cmdSameGame", QStringLiteral("Same Game"), 150, "SameGame", true);
  cmdDifferentGame = AddButton("cmdDifferentGame", QStringLiteral("Different Game"), 2070, "DifferentGame", true);
  cmdQuit = AddButton("cmdQuit", QStringLiteral("Quit"), 3990, "Quit", false);
  cmdSameGame->setBackColor(QColor(0, 0, 225));
  cmdDifferentGame->setBackColor(QColor(0, 0, 225));
  cmdQuit->setBackColor(QColor(0, 128, 255));
  FixButtonColours(*this);
}

void frmCongrats::Place() { PlaceFrame(*this, main.TableCorner()); }

void frmCongrats::showEvent(QShowEvent* Event) {
  PlacedDialog::showEvent(Event);
  QTimer::singleShot(0, this, &frmCongrats::Form_Activate);
}

void frmCongrats::changeEvent(QEvent* Event) {
  PlacedDialog::changeEvent(Event);
  if (Event->type() != QEvent::ActivationChange) return;
  // The first activation may come late: it's no return.
  if (!isActiveWindow()) {
    left = true;
  } else if (std::exchange(left, false)) {
    Form_Activate();
  }
}

/// The engraving: the name stands on the plate when the sound starts.
void frmCongrats::Form_Activate() {
  if (engraving || !isVisible()) return;
  engraving = true;
  game.desktop.Sleep(EngravingTime);
  game.desktop.PlaySoundFile(game.Settings.GetSound("GameOver"), false);
  lblWinner->setText(QStringLiteral("* %1 *").arg(QString::fromStdString(game.m.PlayerName[game.m.Winner])));
  // The last keys of the game, typed ahead, aren't meant for the buttons.
  game.desktop.PumpEvents();
  for (ButtonPlus* Button : {cmdSameGame, cmdDifferentGame, cmdQuit}) Button->setEnabled(true);
  cmdSameGame->setFocus();
  engraving = false;
}

}  // namespace blunko
