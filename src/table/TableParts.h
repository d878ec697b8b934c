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

/// Logical pixels of a length in twips, 0 or more: 15 twips are one pixel.
constexpr int Pixels(int Twips) { return (Twips + 7) / 15; }

/// The table's window as it is built: every control at its place, and menus that pop up under their words. It knows no
/// game.
class TableParts : public QWidget {
 public:
  QWidget* picGameTray;
  StretchedPicture* Image1;
  DiceTray *picTray1, *picTray2;
  DiceTray* picSampleDice;                     ///< covers the lower tray while the options panel is open
  std::array<DieBox*, 12> Picture1;            ///< 0 to 5 the table, 6 to 11 the tray slots
  std::array<QWidget*, 6> picMarker, picLamp;  ///< a mark, and the lamp that burns round it
  QWidget* pctDivider;
  ButtonPlus *ARCmdNewGame, *cmdRoll, *cmdPassDice, *cmdOptions, *cmdHighRollers, *cmdExit;
  FitLabel *lblStatus, *lblLastRoll, *Label1, *lblPlayer, *lblTurnScoreLabel, *lblTurnScore;
  WordButton *lblMnuGame, *lblMnuHelp;
  QMenu *mnuGame, *mnuHelpMe;
  QAction *mnuNewGame, *mnuOptions, *mnuExit, *mnuHowToPlay, *mnuGoHelp, *mnuAbout;

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
