#pragma once

#include <QLabel>

#include "engine/Desktop.h"
#include "storage/IniInfo.h"
#include "widgets/ButtonPlus.h"
#include "widgets/Pictures.h"
#include "widgets/PlacedDialog.h"
#include "widgets/TickBox.h"
#include "widgets/WordButton.h"

namespace blunko {

/// Greets the player when the table first comes up: help topics, the maker's web site, and the box that switches the
/// greeting off. The box writes to the info file at once; the settings of this run don't hear of it.
class frmWelcome : public PlacedDialog {
  Q_OBJECT

 public:
  frmWelcome(const IniInfo& Info, Desktop& Screen, QWidget* Main);

  QLabel *Label1, *Label2;
  ButtonPlus *cmdLearn, *cmdPoints, *cmdTips, *cmdWebSite, *cmdExit;
  TickBox* lblCheck;
  WordButton* lblShowWelcome;

 signals:
  /// A page of the help is wanted, "Name.htm" or "Name.htm#anchor".
  void helpAsked(const QString& Topic);

 protected:
  void done(int Result) override;
  void paintEvent(QPaintEvent* Event) override;

 private:
  void lblCheck_Click();

  const IniInfo& info;
  Desktop& desktop;
  SvgBox* picDice;
  bool WelcomeSwitchedOff = false;  ///< the box has been cleared while the dialog was open
};

}  // namespace blunko
