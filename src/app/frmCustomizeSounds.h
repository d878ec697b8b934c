#pragma once

#include <array>
#include <string>

#include "engine/Desktop.h"
#include "sound/SoundEvents.h"
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
  /// The file that is picked passes through `FormMessage`.
  frmCustomizeSounds(std::string& FormMessage, GameSettings& Options, Desktop& Screen, QWidget* Owner);

  QListWidget* lstEvents;
  QLineEdit* txtSound;
  ButtonPlus *cmdBrowse, *cmdTest, *cmdOK, *cmdCancel;

 protected:
  bool eventFilter(QObject* Watched, QEvent* Event) override;

 private:
  void BuildControls();
  void LayOut();
  void Form_Load();
  std::string PickFile(const QString& Title);
  void lstEvents_Click();
  void cmdBrowse_Click();
  void cmdTest_Click();
  void cmdOK_Click();
  void Form_KeyUp(std::int16_t KeyCode);
  std::string& ChosenFile();

  std::string& message;
  GameSettings& settings;
  Desktop& desktop;
  std::array<std::string, SoundEvents.size()> EventFile;  ///< in the order of the list
};

}  // namespace blunko
