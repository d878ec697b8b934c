#pragma once

#include <array>
#include <optional>

#include "engine/Desktop.h"
#include "engine/GameSetup.h"
#include "storage/SavedSetup.h"
#include "widgets/ButtonPlus.h"
#include "widgets/PlacedDialog.h"

class QCheckBox;
class QComboBox;
class QLayout;
class QLineEdit;
class QRadioButton;

namespace blunko {

/// The dialog in which seats and scores of a game are chosen, and through which every game begins. It also saves the
/// default game.
class frmNewGame : public PlacedDialog {
  Q_OBJECT

 public:
  frmNewGame(Desktop& Screen, const IniInfo& Info, const GameSettings& Options, QWidget* Main);

  /// Shows the dialog and waits: the game that Play begins, nothing when the dialog is left. A restart word in
  /// `FormMessage` is taken from there and begins one without waiting for anybody: "SameGame" with the seats of the
  /// last game, "RestartGame" with the saved ones.
  std::optional<GameSetup> ShowModal(std::string& FormMessage);
  /// Forgets what the controls hold, as closing the form does.
  void Unload() { loaded = false; }

  std::array<QRadioButton*, MaxSeats> optNumPlayers;
  std::array<QRadioButton*, 2> optPlayTo, optBreakIn;
  std::array<QLineEdit*, MaxSeats> TxtPlayerName;
  std::array<QCheckBox*, MaxSeats> chkComputer;
  std::array<QComboBox*, MaxSeats> cboStyle;
  ButtonPlus *cmdPlay, *cmdCancel, *cmdSetDefault;

 signals:
  /// What a list of styles has changed to: the toolkit tells no listener.
  void told(const QString& Text);

 protected:
  bool eventFilter(QObject* Watched, QEvent* Event) override;
  void Place() override;

 private:
  QLayout* BuildChoices();
  QLayout* BuildSeats();
  QLayout* BuildButtons();
  void BuildSeat(int Index);
  void DescribeSeat(int Index);
  void Form_Load();
  void Form_Activate();
  void optNumPlayers_Click(int Index);
  void chkComputer_Click(int Index);
  void cmdSetDefault_Click();
  void FitHeight(int Index);
  GameSetup ShownSetup() const;

  Desktop& desktop;
  const IniInfo& info;
  const GameSettings& settings;
  bool loaded = false;
  std::optional<GameSetup> lastGame;  ///< what "Same Game" plays again
};

}  // namespace blunko
