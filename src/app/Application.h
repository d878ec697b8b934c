#pragma once

#include <QObject>

#include <memory>

#include "app/Accessibility.h"
#include "app/HelpWindow.h"
#include "app/QtDesktop.h"
#include "app/frmNewGame.h"
#include "bots/ComputerPlayers.h"
#include "engine/Game.h"
#include "sound/Sounds.h"
#include "storage/Folders.h"
#include "storage/GameSettings.h"
#include "storage/IniInfo.h"
#include "table/OptionsPanel.h"
#include "table/frmMain.h"
#include "table/frmScorePad.h"
#include "util/HighRollers.h"
#include "util/TbkUtil.h"
#include "util/UtilRandom.h"

namespace blunko {

class Announcer;

/// The program: owns the objects of a run, puts its start-up questions, shows the table, and answers what the rules ask
/// of the dialogs.
class Application : public QObject, public Program, private HighRollersScreen {
 public:
  /// `Numbers` replaces the dice and `Where` the folders, for tests.
  explicit Application(const Folders& Where, std::unique_ptr<NumberSource> Numbers = std::make_unique<FairDice>())
      : Application(Where, IniInfo(Where.InfoPath()), std::move(Numbers)) {}
  /// Shares what `Info` has read of the info file.
  Application(const Folders& Where, const IniInfo& Info,
              std::unique_ptr<NumberSource> Dice = std::make_unique<FairDice>());
  ~Application() override;

  /// The start, up to the shown table. False: the program ends without having shown it.
  bool Main();

  /// Opens the help at a page, "Name.htm" or "Name.htm#anchor".
  void ShowHelpTopic(const QString& Topic);

  void Announce(GameEvent Event) override;
  void UpdateActivePlayer() override;
  void ShowScorePad() override;
  void FocusTable() override;
  void ShowCongrats() override;
  void ShowNewGame() override;
  void ShowOptions() override;
  void SettleOptions(bool Save) override;
  void HideOptions() override;
  void UnloadOtherForms() override;
  void ExitProgram() override;
  void Abort() override;

  Folders folders;
  IniInfo InfoFile;
  GameSettings Settings;
  Module1 State;
  TableControls Controls;
  Sounds Player;
  QtDesktop Screen{Player, Settings.Options()};
  std::unique_ptr<NumberSource> Numbers;
  UniformGenerator Uniform;
  Game Table;
  ComputerPlayers Players;
  TbkUtil Util;
  HighRollers Rollers;
  std::unique_ptr<frmMain> Form;

  bool eventFilter(QObject* Receiver, QEvent* Event) override;

 private:
  void LoadForm();
  void Form_Activate();
  void Form_Resize();
  frmScorePad& ScorePad();
  frmNewGame& NewGame();
  OptionsPanel& Options();
  QString AskName(const QString& Prompt, const QString& Title, const QString& Preset) override;
  void AskToView() override;
  void ViewLists() override;

  Announcer* speaker = nullptr;
  TableNews news;
  OptionsPanel* options = nullptr;
  frmScorePad* scorePad = nullptr;
  frmNewGame* newGame = nullptr;
  std::unique_ptr<HelpWindow> help;
};

}  // namespace blunko
