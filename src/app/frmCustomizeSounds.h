#pragma once

#include <array>
#include <functional>
#include <string>

#include "engine/Game.h"
#include "storage/GameSettings.h"
#include "widgets/ButtonPlus.h"
#include "widgets/PlacedDialog.h"

class QLineEdit;
class QListWidget;

namespace blunko {

/// The dialog in which a player puts wave files of their own on the events of the game. Nothing reaches the settings
/// before OK.
class frmCustomizeSounds : public PlacedDialog {
  Q_OBJECT

 public:
  frmCustomizeSounds(Game& Table, GameSettings& Options, QWidget* Owner);

  /// Asks for a wave file: the path chosen, or `NothingPicked`. It can be replaced where nobody is there to answer.
  std::function<QString(const QString& Title)> PickFile;
  static inline const QString NothingPicked = QStringLiteral("¤¤¤");

  QListWidget* lstEvents;
  QLineEdit* txtSound;
  ButtonPlus* cmdBrowse;
  ButtonPlus* cmdTest;
  ButtonPlus* cmdOK;
  ButtonPlus* cmdCancel;

 protected:
  bool eventFilter(QObject* Watched, QEvent* Event) override;

 private:
  void Build();
  void Form_Load();
  void lstEvents_Click();
  void cmdBrowse_Click();
  void cmdTest_Click();
  void cmdOK_Click();
  void Form_KeyUp(std::int16_t KeyCode);
  std::string& ChosenFile();

  Game& game;
  GameSettings& settings;
  std::array<std::string, SoundEvents.size()> EventFile;  ///< in the order of the list
};

}  // namespace blunko
