#pragma once

#include <QWidget>

#include <array>

#include "table/DieBox.h"
#include "widgets/ButtonPlus.h"
#include "widgets/FitLabel.h"
#include "widgets/Pictures.h"
#include "widgets/WordButton.h"

class QAction;
class QMenu;

namespace blunko {

/// The table's window as it is built: every control at its place, and menus that pop up under their words. It knows no
/// game.
class TableParts : public QWidget {
 public:
  QWidget* picGameTray;
  StretchedPicture* Image1;
  DiceTray* picTray1;
  DiceTray* picTray2;
  DiceTray* picSampleDice;           ///< covers the lower tray while the options panel is open
  std::array<DieBox*, 12> Picture1;  ///< 0 to 5 the table, 6 to 11 the tray slots
  std::array<QWidget*, 6> picMarker;
  QWidget* pctDivider;
  ButtonPlus* ARCmdNewGame;
  ButtonPlus* cmdRoll;
  ButtonPlus* cmdPassDice;
  FitLabel* lblStatus;
  FitLabel* lblLastRoll;
  FitLabel* Label1;
  FitLabel* lblPlayer;
  FitLabel* lblTurnScoreLabel;
  FitLabel* lblTurnScore;
  ButtonPlus* cmdOptions;
  ButtonPlus* cmdHighRollers;
  ButtonPlus* cmdExit;
  WordButton* lblMnuGame;
  WordButton* lblMnuHelp;
  QMenu* mnuGame;
  QMenu* mnuHelpMe;
  // What the menus offer.
  QAction* mnuNewGame;
  QAction* mnuOptions;
  QAction* mnuExit;
  QAction* mnuHowToPlay;
  QAction* mnuGoHelp;
  QAction* mnuAbout;

  /// The bitmaps by number, shared by everything on the table.
  Bitmaps Pictures;

 protected:
  /// The window with its background and the trays. A background that begins to be decoded now is there when PlaceRest
  /// has placed the rest.
  TableParts();
  void PlaceRest();

 private:
  void PlaceTrays();
  void PlaceCover();
  void PlaceButtons();
  void PlaceLabels();
  void BuildMenus();
  QMenu* MenuUnder(WordButton* Word, const char* Name);
};

}  // namespace blunko
