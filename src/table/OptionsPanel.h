#pragma once

#include <QWidget>

#include <array>
#include <initializer_list>

#include "engine/Game.h"
#include "storage/GameSettings.h"
#include "table/Backgrounds.h"
#include "table/Dress.h"
#include "table/Strip.h"
#include "table/Swatch.h"
#include "widgets/ButtonPlus.h"

class QCheckBox;
class QComboBox;
class QListWidget;
class QRadioButton;
class QVBoxLayout;

namespace blunko {

class frmMain;
struct DiceSet;

/// The options: a panel that comes to light at the left of the table, which stands frozen beside it and wears every
/// choice at once. Save makes the choices permanent, Cancel takes them back.
///
/// The game's own record of the table isn't touched by the preview: a computer that plays on meanwhile, or the end of
/// its game, finds it as it was.
class OptionsPanel : public QWidget {
  Q_OBJECT

 public:
  /// The pictures of all the folders are offered; of two with the same name that in the folder named first.
  OptionsPanel(frmMain& Main, Game& Table, GameSettings& Options, QStringList BackgroundFolders);

  /// The table window grows to the left, and the panel comes to light there.
  void Open();
  /// Stores what was chosen, or takes the preview back.
  void Settle(bool Save);
  void Close();

  std::array<QRadioButton*, 3> optComputerSpeed;
  QCheckBox *chkSortDice, *chkMarkScorers;
  std::array<QRadioButton*, 2> optSound;  ///< 0 off, 1 on
  QComboBox* cboDiceColor;
  QListWidget* lstSkin;
  std::array<Swatch*, 8> lblColor;
  ButtonPlus *cmdCustomizeSounds, *ARCmdSaveOptions, *ARCmdCancelOptions;

 signals:
  /// The sounds are to be chosen, in a dialog over the panel.
  void customizeSoundsAsked();
  /// What the list of the dice has changed to: the toolkit tells no listener.
  void told(const QString& Text);

 protected:
  void paintEvent(QPaintEvent* Event) override;

 private:
  QVBoxLayout* AddFrame(const QString& Caption, std::initializer_list<QWidget*> Controls = {});
  void BuildSwitches();
  void BuildLists();
  void BuildSwatches();
  void BuildCommands();
  void ShowWholeRows();
  void ShowSampleDice();
  void SnapshotOptions();
  void NameChosen();
  void LoadOptionControls();
  void StoreOptionControls();
  void ApplyOptions();
  void RevertOptions();
  void cboDiceColor_Click();
  void lstSkin_Click(int Entry);
  void lblColor_Click(int Index);
  void ShowSet(const DiceSet& Set, QRgb Colour);

  frmMain& form;
  Strip strip{form};
  Game& game;
  GameSettings& settings;
  Backgrounds backgrounds;
  QVBoxLayout* frames;
  bool backgroundChosen = false;  ///< a picture, or none, has been clicked since the opening

  // How things were at the opening.
  Dress before;
  std::int16_t SavedDieColour = 0;
};

}  // namespace blunko
