#pragma once

#include <QDialog>
#include <QLabel>

#include "engine/Desktop.h"
#include "engine/Module1.h"
#include "storage/IniInfo.h"
#include "widgets/ButtonPlus.h"
#include "widgets/TickBox.h"
#include "widgets/WordButton.h"

namespace blunko {

/// Congratulates a person on a place in the high rollers lists, and asks whether to view them. `FormMessage` brings
/// name, place and "turn" or "whoop", and takes "Yes" or "No"; closed without a button, the dialog leaves it as it was.
class frmViewHRListYN : public QDialog {
  Q_OBJECT

 public:
  frmViewHRListYN(Module1& State, Desktop& Screen, const IniInfo& Info, QWidget* Main);

  QLabel* lblWayToGo;
  QLabel* lblMessage;
  ButtonPlus* cmdYes;
  ButtonPlus* cmdNo;
  TickBox* lblCheck;  ///< empty at first: on a day for which it is ticked, nobody is asked
  WordButton* lblDontAsk;

 private:
  ButtonPlus* NewButton(const char* Name, const QString& Caption, const char* Word);
  void lblCheck_Click();

  Module1& m;
  Desktop& desktop;
  const IniInfo& info;
};

}  // namespace blunko
