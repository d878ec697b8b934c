#pragma once

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

#include "table/frmMain.h"
#include "tests/support/Table.h"

namespace blunko::test {

/// Shows a window and waits until it has the focus.
inline void Activate(QWidget& Window) {
  Window.show();
  Window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Window, 2000));
}

/// The table's window over a recorded game.
struct TableForm : Table {
  frmMain Form{game};

  explicit TableForm(const GameOptions* Instead = nullptr) : Table(Instead) {
    Form.Wears.Trays = Qt::darkRed;
    Activate(Form);
  }

  void Begin(const std::vector<const char*>& Names) {
    Form.Handle([&] { Table::Begin(Names); });
  }
  /// Rolls with the button.
  void PressRoll(const std::vector<int>& Faces) {
    Script(Faces);
    QTest::mouseClick(Form.cmdRoll, Qt::LeftButton);
  }
  DieBox* Box(int Index) { return Form.Picture1[static_cast<std::size_t>(Index < 10 ? Index : Index - 4)]; }
};

}  // namespace blunko::test
