#include "app/frmViewHRListYN.h"

#include <QVBoxLayout>

#include "storage/NameRule.h"
#include "storage/Numbers.h"
#include "util/HighRollers.h"
#include "widgets/FormBuilder.h"
#include "widgets/Materials.h"

namespace blunko {

frmViewHRListYN::frmViewHRListYN(std::string& FormMessage, Desktop& Screen, const IniInfo& Info, QWidget* Main)
    : PlacedDialog(Main, "frmViewHRListYN", "Way to go !!!", Cloth::Navy),
      message(FormMessage),
      desktop(Screen),
      info(Info) {
  const QStringList Fields = QString::fromStdString(message).split(FieldSeparator);
  lblWayToGo = MakeTitle(this, "lblWayToGo", "Great Job, " + Fields.value(0) + "!!!", 21, Gilt);
  lblMessage =
      MakeText(this, "lblMessage",
               PlaceMade(Fields.value(1), Fields.value(2)) + "Would you like to view the high rollers list now?",
               FontOf(Typeface::Verdana, 13));
  lblMessage->setWordWrap(true);
  cmdYes = MakeButton(this, "cmdYes", "Yes", [this] { Leave("Yes"); });
  cmdNo = MakeButton(this, "cmdNo", "No", [this] { Leave("No"); });
  SetFirst(cmdYes);
  lblCheck = Make<TickBox>(this, "lblCheck");
  lblDontAsk = MakeWordsOf(lblCheck, "lblDontAsk", "Don't ask me this again today.");
  connect(lblCheck, &QAbstractButton::clicked, this, &frmViewHRListYN::lblCheck_Click);
  for (ButtonPlus* Button : {cmdYes, cmdNo}) Button->setMinimumWidth(100);
  constexpr int SmallestWidth = 370;  // px
  const auto* Outer =
      Stack(this, {18, 14, 18, 12}, 12,
            {lblWayToGo, lblMessage, CentredRow({cmdYes, cmdNo}, 16), CentredRow({lblCheck, lblDontAsk})});
  const int Width = qMax(SmallestWidth, Outer->minimumSize().width());
  setFixedSize(Width, Outer->totalHeightForWidth(Width));
}

void frmViewHRListYN::Leave(const char* Word) {
  message = Word;
  accept();
}

void frmViewHRListYN::lblCheck_Click() {
  desktop.Beep();
  info.WriteInfoValue(NoQuestionKey, lblCheck->isChecked() ? DayNumber(QDate::currentDate()) : NoDay);
}

}  // namespace blunko
