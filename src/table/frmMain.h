#pragma once

#include <QWidget>

#include <array>
#include <map>

#include "engine/Game.h"
#include "table/DieBox.h"
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
  explicit frmMain(Game& Table);

  /// Copies the record of the controls to the widgets; what has changed is on the screen when it returns.
  void ShowControls();

  /// Gives trays and die boxes the colour of the dice set at program start.
  void PaintTrays(const QColor& Tray1, const QColor& Tray2);
  /// Shows the background picture at the path; none for "(None)".
  void ShowBackground(const QString& Path);
  /// Gives the labels of the table the text colour, 0xBBGGRR.
  void ColourLabels(std::uint32_t Colour);
  /// Shows the faces 1 to 6 of a set in the upper tray, in place of the game's dice; 0 brings those back.
  void ShowSampleFaces(int Base);
  /// Covers the lower tray, or uncovers it.
  void CoverTray(bool Covered) { picSampleDice->setVisible(Covered); }
  /// Opens a strip of this many pixels at the left of the table, which keeps its place on the screen.
  void SetStripWidth(int Width);
  /// The table's part of the window, frame included, in screen coordinates.
  QPoint TableCorner() const { return pos() + QPoint(picGameTray->x(), 0); }
  /// Moves the window to the middle of its screen.
  void CentreOnScreen();

  /// Runs a handler of the game, and shows what it has changed.
  template <typename Handler>
  void Handle(Handler Run) {
    Run();
    ShowControls();
  }

  // The controls.
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

 protected:
  void showEvent(QShowEvent* Event) override;
  void closeEvent(QCloseEvent* Event) override;
  void changeEvent(QEvent* Event) override;
  void keyPressEvent(QKeyEvent* Event) override;
  void keyReleaseEvent(QKeyEvent* Event) override;

 private:
  void PlaceControls();
  void BuildMenus();
  void ConnectControls();
  void Show(ButtonPlus* Widget, const Button& Control);
  void Show(FitLabel* Widget, const std::string& Caption, bool Visible, int Top);
  void DescribeDice();

  Game& game;
  /// Keys pressed in this window, each with its Shift mask then: only their release is a command.
  std::map<int, std::int16_t> keysDown;
  int sampleBase = 0;
  bool activatedBefore = false;
};

}  // namespace blunko
