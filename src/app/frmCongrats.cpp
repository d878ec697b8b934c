#include "app/frmCongrats.h"

#include <QEvent>
#include <QTimer>

#include <utility>

#include "table/frmMain.h"
#include "widgets/FormBuilder.h"
#include "widgets/Materials.h"

namespace blunko {

constexpr int EngravingTime = 500;  // ms
constexpr int GreetingTop = 8;      // px
const QColor PlateColour(0, 0, 128);

frmCongrats::frmCongrats(const QString& Winner, std::string& FormMessage, Desktop& Screen, const GameOptions& Settings,
                         frmMain& Main)
    : PlacedDialog(&Main, "frmCongrats", "Congratulations " + Winner + " !!!"),
      winner(Winner),
      message(FormMessage),
      desktop(Screen),
      settings(Settings),
      table(Main) {
  SetColours(*this, {{QPalette::Window, FormBlue}});
  auto* Rays = Placed(Make<QLabel>(this, "picRays"), {0, 0, 391, 513});
  Rays->setScaledContents(true);
  Rays->setPixmap(QPixmap(":/materials/rays.jpg"));
  setFixedSize(Rays->size());
  Image2 = Make<SvgBox>(this, "Image2", ":/art/trophy.svg");
  Placed(Image2, {{0, 0}, Image2->sizeHint()});
  Image1 = Make<SvgBox>(this, "Image1", ":/art/greeting.svg");
  Placed(Image1, {{(width() - Image1->sizeHint().width()) / 2, GreetingTop}, Image1->sizeHint()});
  lblWinner = MakeText<FitLabel>(this, "lblWinner", "Engraving...", FontOf(Typeface::ComicSans, 19, true));
  Placed(lblWinner, {113, 408, 171, 25});
  SetColours(*lblWinner, {{QPalette::Window, PlateColour}, {QPalette::WindowText, Qt::yellow}});
  BuildButtons();
}

void frmCongrats::BuildButtons() {
  cmdSameGame = MakeButton(this, "cmdSameGame", "Same Game", [this] { Leave("SameGame"); });
  cmdDifferentGame = MakeButton(this, "cmdDifferentGame", "Different Game", [this] { Leave("DifferentGame"); });
  cmdQuit = MakeButton(this, "cmdQuit", "Quit", [this] { Leave("Quit"); });
  int Left = 10;
  for (ButtonPlus* Button : {cmdSameGame, cmdDifferentGame, cmdQuit}) {
    Placed(Button, {Left, 466, 113, 33});
    Button->setFont(FontOf(Typeface::Verdana, 11));  // the longest caption fits
    Button->setBackColor(Button == cmdQuit ? QColor(0, 128, 255) : QColor(0, 0, 225));
    Button->setEnabled(false);
    Left += 128;
  }
}

void frmCongrats::Leave(const char* Word) {
  message = Word;
  if (message != "Quit") desktop.Beep();
  accept();
}

void frmCongrats::Place() { PlaceFrame(*this, FramePlace(table).topLeft() + QPoint(table.picGameTray->x(), 0)); }

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
  desktop.Sleep(EngravingTime);
  desktop.PlaySoundFile(settings.GetSound("GameOver"), false);
  lblWinner->setText("* " + winner + " *");
  // The last keys of the game, typed ahead, aren't meant for the buttons.
  desktop.PumpEvents();
  for (ButtonPlus* Button : {cmdSameGame, cmdDifferentGame, cmdQuit}) Button->setEnabled(true);
  cmdSameGame->setFocus();
  engraving = false;
}

}  // namespace blunko
