#pragma once

#include <array>
#include <string>

namespace blunko {

struct Label {
  std::string Caption;
  bool Visible = true;
  int Top = 0;        ///< twips
  bool Loud = false;  ///< in large letters of its own colour: the game's big moment
};

struct Button {
  bool Enabled = false;
  bool Visible = true;
};

struct Panel {
  bool Enabled = true;
};

struct PictureBox {
  bool Visible = true;
  int Left = 0;  ///< twips
};

/// The control array of the dice: table positions 0 to 5 and tray slots 10 to 15. There is none from 6 to 9.
class DieBoxes {
 public:
  int& operator()(int Index) { return Pictures[static_cast<std::size_t>(Index)]; }
  int operator()(int Index) const { return Pictures[static_cast<std::size_t>(Index)]; }

 private:
  std::array<int, 16> Pictures{};
};

/// Left edge of the die boxes in their tray, in twips; the same for the table and the tray.
inline constexpr std::array<int, 6> DieBoxLeft{60, 960, 1845, 2745, 3645, 4530};

/// Resting place of the status line, and how far it gives way when the last-roll line shows below it; twips.
inline constexpr int StatusTop = 3285;
inline constexpr int StatusRise = 180;

/// What the table shows: the single truth, from which the widgets are drawn. Handlers assign its fields.
struct TableControls {
  Label lblStatus{" ", true, StatusTop};
  Label lblLastRoll{"", false, 0};
  Label lblPlayer;
  Label lblTurnScore;
  Button ARCmdNewGame{true, true};
  Button cmdRoll{false, false};
  Button cmdPassDice{false, false};
  Panel picGameTray;  ///< holds everything else: disabled while the options panel is open
  Panel picTray1;
  Panel picTray2;
  DieBoxes Picture1;                ///< bitmap numbers, 0 for an empty box
  std::array<bool, 6> picMarker{};  ///< visible marks over the table positions
  PictureBox pctDivider{false, 0};
  bool Rolling = false;  ///< the dice are in the air: what they show doesn't count yet
  bool Busted = false;   ///< the dice on the table are lost, and pale

  /// Whether a press of the button has an effect: a hidden one, or one on a disabled table, is as good as disabled.
  bool CanPress(const Button& Which) const { return Which.Enabled && Which.Visible && picGameTray.Enabled; }

  /// The last-roll line appears below the status line, which gives way; and the reverse.
  void ShowLastRoll(bool Shown = true) {
    lblLastRoll.Visible = Shown;
    lblStatus.Top = Shown ? StatusTop - StatusRise : StatusTop;
  }
};

}  // namespace blunko
