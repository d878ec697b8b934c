#pragma once

class QWidget;

namespace blunko {

class TableParts;

/// Where the keyboard's focus goes when the button or die that has it goes: to the table, not to the button that
/// happens to come next. There Space would play for the person.
class TableFocus {
 public:
  explicit TableFocus(TableParts& Window) : form(Window) {}

  /// Tab goes as the eye does: from the menus over the dice to the buttons.
  void OrderTabStops();
  /// Before a widget, or what lies in it, goes off or out of sight; also while a dialog is active.
  void Leave(const QWidget* Going);
  /// When the handler has done with the dice, the focus is again where it was among them: on the first one that is left
  /// in the row. A focus that is nowhere goes to Roll Dice, if the turn goes on there.
  void HandlerEnded();

 private:
  TableParts& form;
  const QWidget* left = nullptr;  ///< what went with the focus
};

}  // namespace blunko
