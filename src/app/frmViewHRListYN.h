#pragma once

#include <QLabel>

#include <string>

#include "engine/Desktop.h"
#include "storage/IniInfo.h"
#include "widgets/ButtonPlus.h"
#include "widgets/PlacedDialog.h"
#include "widgets/TickBox.h"
#include "widgets/WordButton.h"

namespace blunko {

/// Congratulates a person on a place in the high rollers lists, and asks whether to view them. `FormMessage` brings
/// name, place and "turn" or "whoop", and takes "Yes" or "No"; closed without a button, the dialog leaves it as it was.
class frmViewHRListYN : public PlacedDialog {
  Q_OBJECT

 public:
  frmViewHRListYN(std::string& FormMessage, Desktop& Screen, const IniInfo& Info, QWidget* Main);

  QLabel *lblWayToGo, *lblMessage;
  ButtonPlus *cmdYes, *cmdNo;
  TickBox* lblCheck;  ///< empty at first: on a day for which it is ticked, nobody is asked
  WordButton* lblDontAsk;

 private:
  void Leave(const char* Word);
  void lblCheck_Click();

  std::string& message;
  Desktop& desktop;
  const IniInfo& info;
};

}  // namespace blunko
