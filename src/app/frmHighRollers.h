#pragma once

#include "engine/Desktop.h"
#include "util/HighRollers.h"
#include "widgets/ButtonPlus.h"
#include "widgets/LinkLabel.h"
#include "widgets/Pictures.h"
#include "widgets/PlacedDialog.h"

class QLabel;
class QPlainTextEdit;

namespace blunko {

/// Shows the two high rollers lists, as they are in the file when it opens, and can reset them.
class frmHighRollers : public PlacedDialog {
  Q_OBJECT

 public:
  frmHighRollers(HighRollers& Lists, Desktop& Screen, QWidget* Main);

  /// Reads the file and fills both text boxes: names and scores with dots between, the scores in one column.
  void ShowHighRollerLists();
  /// `Count` full stops, none if it is below 1.
  static QString DotString(int Count);

  QLabel *lblHSTS, *lblBMoV;
  QPlainTextEdit *txtHSTSList, *txtBMoVList;
  SvgBox *Image1, *Image2;
  LinkLabel* lblReset;
  ButtonPlus* cmdOK;

 protected:
  void Place() override;

 private:
  QPlainTextEdit* MakeList(const QString& Name, const QString& Description);
  void LayOut();
  static void FillList(QPlainTextEdit* Box, const RollerList& List);
  void lblReset_Click();

  HighRollers& rollers;
  Desktop& desktop;
};

}  // namespace blunko
