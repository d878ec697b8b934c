#pragma once

#include <string>

#include "engine/Desktop.h"
#include "engine/GameOptions.h"
#include "widgets/ButtonPlus.h"
#include "widgets/FitLabel.h"
#include "widgets/Pictures.h"
#include "widgets/PlacedDialog.h"

namespace blunko {

class frmMain;

/// The game-over dialog: a trophy with the winner's name on its plate, and three buttons that leave a word in
/// `FormMessage`.
class frmCongrats : public PlacedDialog {
  Q_OBJECT

 public:
  frmCongrats(const QString& Winner, std::string& FormMessage, Desktop& Screen, const GameOptions& Settings,
              frmMain& Main);

  SvgBox *Image1, *Image2;  ///< the arched greeting, and the trophy
  FitLabel* lblWinner;
  ButtonPlus *cmdSameGame, *cmdDifferentGame, *cmdQuit;

 protected:
  void Place() override;
  void showEvent(QShowEvent* Event) override;
  void changeEvent(QEvent* Event) override;

 private:
  void BuildButtons();
  void Leave(const char* Word);
  void Form_Activate();

  const QString winner;
  std::string& message;
  Desktop& desktop;
  const GameOptions& settings;
  frmMain& table;
  bool engraving = false;
  bool left = false;  ///< for another window, since the engraving
};

}  // namespace blunko
