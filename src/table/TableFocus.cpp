#include "table/TableFocus.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "table/TableParts.h"

namespace blunko {

void TableFocus::OrderTabStops() {
  std::vector<QWidget*> Order{form.lblMnuGame, form.lblMnuHelp};
  Order.insert(Order.end(), form.Picture1.begin(), form.Picture1.end());
  Order.insert(Order.end(),
               {form.ARCmdNewGame, form.cmdRoll, form.cmdPassDice, form.cmdOptions, form.cmdHighRollers, form.cmdExit});
  for (std::size_t i = 1; i < Order.size(); ++i) QWidget::setTabOrder(Order[i - 1], Order[i]);
}

void TableFocus::Leave(const QWidget* Going) {
  const QWidget* const Focus = form.focusWidget();
  if (Focus != Going && !Going->isAncestorOf(Focus)) return;
  form.setFocus();
  left = Going;
}

void TableFocus::HandlerEnded() {
  const auto All = form.Picture1.begin();
  const auto Box = std::find(All, form.Picture1.end(), std::exchange(left, nullptr)) - All;
  if (form.focusWidget() != &form) return;
  const auto Row = All + Box / 6 * 6;
  const auto End = Box < std::ssize(form.Picture1) ? Row + 6 : Row;
  const auto First = std::find_if(Row, End, [](DieBox* Die) { return Die->Picture() != 0 && Die->isEnabled(); });
  if (First != End) return (*First)->setFocus();
  for (QPushButton* Next : {form.cmdRoll, form.ARCmdNewGame}) {
    if (Next->isVisible() && Next->isEnabled()) return Next->setFocus();
  }
}

}  // namespace blunko
