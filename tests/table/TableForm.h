#pragma once

#include <QApplication>
#include <QBitmap>
#include <QTest>

#include <gtest/gtest.h>
#include <string>

#include "table/frmMain.h"
#include "tests/support/Table.h"
#include "widgets/Twips.h"

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

/// Where the widgets show something else than the record holds; empty when they agree.
inline std::string Difference(const frmMain& Form, const TableControls& t) {
  std::string All;
  const auto Compare = [&All](const QObject* Widget, const char* What, const auto& Shown, const auto& Recorded) {
    if (!(Shown == Recorded)) All += Widget->objectName().toStdString() + " " + What + "\n";
  };
  const auto CompareEnabled = [&](const QWidget* Shown, bool Recorded) {
    Compare(Shown, "enabled", Shown->isEnabled(), Recorded && t.picGameTray.Enabled);
  };
  for (const auto& [Shown, Record] : {std::pair(Form.ARCmdNewGame, &t.ARCmdNewGame),
                                      {Form.cmdRoll, &t.cmdRoll},
                                      {Form.cmdPassDice, &t.cmdPassDice}}) {
    CompareEnabled(Shown, Record->Enabled);
    Compare(Shown, "visible", Shown->isVisible(), Record->Visible);
  }
  for (const auto& [Shown, Record] : {std::pair(Form.lblStatus, &t.lblStatus),
                                      {Form.lblLastRoll, &t.lblLastRoll},
                                      {Form.lblPlayer, &t.lblPlayer},
                                      {Form.lblTurnScore, &t.lblTurnScore}}) {
    Compare(Shown, "caption", Shown->text().toStdString(), Record->Caption);
    Compare(Shown, "visible", Shown->isVisible(), Record->Visible);
  }
  Compare(Form.lblStatus, "top", Form.lblStatus->y(), Pixels(t.lblStatus.Top));
  CompareEnabled(Form.picTray1, t.picTray1.Enabled);
  CompareEnabled(Form.picTray2, t.picTray2.Enabled);
  for (int i = 0; i < 6; ++i) {
    Compare(Form.Picture1[i], "picture", Form.Picture1[i]->Picture(), t.Picture1(i));
    Compare(Form.Picture1[6 + i], "picture", Form.Picture1[6 + i]->Picture(), t.Picture1(10 + i));
    Compare(Form.picMarker[i], "visible", Form.picMarker[i]->isVisible(), t.picMarker[i]);
  }
  Compare(Form.pctDivider, "visible", Form.pctDivider->isVisible(), t.pctDivider.Visible);
  if (t.pctDivider.Visible) Compare(Form.pctDivider, "left", Form.pctDivider->x(), Pixels(t.pctDivider.Left));
  return All;
}

/// Where a picture has exactly this colour.
inline QRegion Drawn(const QPixmap& Picture, const QColor& Colour) {
  return QRegion(Picture.createMaskFromColor(Colour, Qt::MaskOutColor));
}

}  // namespace blunko::test
