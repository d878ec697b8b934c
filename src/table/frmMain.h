#pragma once

#include <QWidget>

#include <array>
#include <map>
#include <optional>

#include "engine/Game.h"
#include "table/DieBox.h"
#include "table/Dress.h"
#include "widgets/ButtonPlus.h"
#include "widgets/FitLabel.h"
#include "widgets/Pictures.h"
#include "widgets/WordButton.h"

class QMenu;

namespace blunko {

/// The game table. It draws the record of the controls and brings clicks and keys to the game's handlers; what the
/// game shows isn't held here.
class frmMain : public QWidget {
  Q_OBJECT

 public:
  /// `Clothes`: what it wears first. Its background is decoded while the window is built.
  explicit frmMain(Game& Table, Dress Clothes = {});

  /// What the table wears. Shown with the next ShowControls.
  Dress Wears;
  /// Draws the records of the controls and of the dress; what has changed is on the screen when it returns.
  void ShowControls();

  /// Runs a handler of the game, and shows what it has changed.
  template <typename Handler>
  void Handle(Handler Run) {
    Run();
    ShowControls();
    KeepFocusOnDice();
    game.AssertSound();
  }

  // The controls.
  QWidget* picGameTray;
  StretchedPicture* Image1;
  SvgBox* picLooseDice = nullptr;  ///< made when a table first has no picture
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

  /// The bitmaps by number, shared by everything on the table.
  Bitmaps Pictures;

 signals:
  /// The window has come up for the first time.
  void firstShown();
  /// The window was minimised or restored.
  void minimised();
  // Commands that aren't moves of the game.
  void optionsAsked();
  void highRollersAsked();
  void howToPlayAsked();
  void helpAsked();
  void aboutAsked();
  void scorePadAsked();

 protected:
  bool event(QEvent* Event) override;
  bool focusNextPrevChild(bool Next) override;
  void wheelEvent(QWheelEvent* Event) override;
  void mouseReleaseEvent(QMouseEvent* Event) override;
  void showEvent(QShowEvent* Event) override;
  void closeEvent(QCloseEvent* Event) override;
  void changeEvent(QEvent* Event) override;
  void keyPressEvent(QKeyEvent* Event) override;
  void keyReleaseEvent(QKeyEvent* Event) override;

 private:
  void PlaceTrays();
  void PlaceCover();
  void PlaceButtons();
  void PlaceLabels();
  void BuildMenus();
  void ConnectControls();
  void Ask(void (frmMain::*Signal)());
  void Show(ButtonPlus* Widget, const Button& Control);
  void Show(FitLabel* Widget, const std::string& Caption, bool Visible, int Top);
  void DrawDress();
  void ShowBackground(const QString& Path);
  void DescribeDice();
  void EnableTray(DiceTray* Tray, bool Enabled);
  void ShowDie(std::size_t Box, int Picture);
  void KeepFocusOnDice();
  void OrderTabStops();

  Game& game;
  /// Keys pressed in this window, each with its Shift mask then: only their release is a command.
  std::map<int, std::int16_t> keysDown;
  std::optional<Dress> drawn;
  QString background;  ///< what is shown of it
  /// The dice as they were described last: faces, and what can be taken.
  std::array<std::pair<int, bool>, 12> described{};
  /// First box of the row in which a die had the focus, until the handler that took the die has ended.
  std::optional<std::ptrdiff_t> focusedRow;
  bool rollHadFocus = false;  ///< Roll Dice went off with the focus: it takes it back when it comes on again
  bool activatedBefore = false;
};

}  // namespace blunko
