#pragma once

#include <QString>

#include <map>

class QWidget;

namespace blunko {

class frmMain;

/// Gives what is painted on the table its place in the tree that screen readers walk: dice are buttons, the pad is a
/// list of seats, a group has a name, and decoration isn't there. Installed once, before the first window.
void InstallAccessibility();

/// Tells a listener once, when a person's command is done, what is different at the table and on the pad. The toolkit's
/// own news of them, some for each step on the way and in the turns of computers, goes to nobody.
class TableNews {
 public:
  void Tell(const frmMain& Form);

 private:
  struct Part {
    bool There, Disabled;
    QString Name;
  };
  std::map<const QWidget*, Part> told;
};

}  // namespace blunko
