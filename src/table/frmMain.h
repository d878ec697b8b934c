#pragma once

#include <array>
#include <optional>
#include <set>

#include "engine/Game.h"
#include "table/Dress.h"
#include "table/TableFocus.h"
#include "table/TableParts.h"

namespace blunko {

/// The game table. It draws the record of the controls and brings clicks and keys to the game's handlers; what the
/// game shows isn't held here.
class frmMain : public TableParts {
  Q_OBJECT

 public:
  /// `Clothes`: what it wears first. Its background is decoded while the window is built.
  explicit frmMain(Game& Table, Dress Clothes = {});

  /// What the table wears. Shown with the next ShowControls.
  Dress Wears;
  /// Draws the records of the controls and of the dress; what has changed is on the screen when it returns.
  void ShowControls();
  /// Shows the background that it wears, anew if its file was replaced.
  void ShowBackground();

  /// Runs a handler of the game, and shows what it has changed.
  template <typename Handler>
  void Handle(Handler Run) {
    Run();
    ShowControls();
    if (!game.IsAtWork()) emit handled();
    focus.HandlerEnded();
    game.AssertSound();
  }

  /// The same for a command that isn't a move: it is carried out if the game takes it.
  template <typename Action>
  void Command(Action Run) {
    Handle([&] { game.Command(Run); });
  }

 signals:
  /// The window has come up for the first time.
  void firstShown();
  /// The game has done what a person asked for, the turns of computers that followed included.
  void handled();
  /// The window was minimised or restored.
  void minimised();
  // Commands that aren't moves of the game.
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
  bool eventFilter(QObject* Tray, QEvent* Event) override;
  void resizeEvent(QResizeEvent* Event) override;
  void closeEvent(QCloseEvent* Event) override;
  void changeEvent(QEvent* Event) override;
  void keyPressEvent(QKeyEvent* Event) override;
  void keyReleaseEvent(QKeyEvent* Event) override;

 private:
  void ConnectControls();
  void Show(ButtonPlus* Widget, const Button& Control);
  void Show(FitLabel* Widget, const Label& Control);
  void DrawDress();
  void DescribeDice();

  Game& game;
  TableFocus focus;
  std::set<quint32> keysDown;  ///< keys pressed at the table, by their places: only their release is a command
  std::optional<Dress> drawn;
};

}  // namespace blunko
