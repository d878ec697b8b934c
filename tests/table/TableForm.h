#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <string>

#include "table/Twips.h"
#include "table/frmMain.h"
#include "tests/engine/Table.h"

namespace blunko::test {

/// The table's window over a recorded game.
struct TableForm : Table {
  frmMain Form{game};

  TableForm() {
    Form.PaintTrays(Qt::darkRed, Qt::darkRed);
    Form.show();
    Form.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Form, 2000));
  }

  void Begin(std::initializer_list<const char*> Names) {
    Form.Handle([&] { Table::Begin(Names); });
  }
  /// Rolls with the button.
  void PressRoll(std::initializer_list<int> Faces) {
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
  const auto CompareButton = [&](const ButtonPlus* Shown, const Button& Record) {
    Compare(Shown, "enabled", Shown->isEnabled(), Record.Enabled && t.picGameTray.Enabled);
    Compare(Shown, "visible", Shown->isVisible(), Record.Visible);
  };
  const auto CompareLabel = [&](const FitLabel* Shown, const Label& Record) {
    Compare(Shown, "caption", Shown->text().toStdString(), Record.Caption);
    Compare(Shown, "visible", Shown->isVisible(), Record.Visible);
  };
  CompareButton(Form.ARCmdNewGame, t.ARCmdNewGame);
  CompareButton(Form.cmdRoll, t.cmdRoll);
  CompareButton(Form.cmdPassDice, t.cmdPassDice);
  CompareLabel(Form.lblStatus, t.lblStatus);
  CompareLabel(Form.lblLastRoll, t.lblLastRoll);
  CompareLabel(Form.lblPlayer, t.lblPlayer);
  CompareLabel(Form.lblTurnScore, t.lblTurnScore);
  Compare(Form.lblStatus, "top", Form.lblStatus->y(), Pixels(t.lblStatus.Top));
  Compare(Form.picTray1, "enabled", Form.picTray1->isEnabled(), t.picTray1.Enabled && t.picGameTray.Enabled);
  Compare(Form.picTray2, "enabled", Form.picTray2->isEnabled(), t.picTray2.Enabled && t.picGameTray.Enabled);
  for (int i = 0; i < 6; ++i) {
    Compare(Form.Picture1[i], "picture", Form.Picture1[i]->Picture(), t.Picture1(i));
    Compare(Form.Picture1[6 + i], "picture", Form.Picture1[6 + i]->Picture(), t.Picture1(10 + i));
    Compare(Form.picMarker[i], "visible", Form.picMarker[i]->isVisible(), t.picMarker[i]);
  }
  Compare(Form.pctDivider, "visible", Form.pctDivider->isVisible(), t.pctDivider.Visible);
  if (t.pctDivider.Visible) Compare(Form.pctDivider, "left", Form.pctDivider->x(), Pixels(t.pctDivider.Left));
  return All;
}

/// The part of a widget that is drawn in something like the colour.
inline QRect Inked(QWidget& Widget, const QColor& Colour) {
  const QImage Picture = Widget.grab().toImage();
  QRect All;
  for (int y = 0; y < Picture.height(); ++y) {
    for (int x = 0; x < Picture.width(); ++x) {
      const QColor Pixel = Picture.pixelColor(x, y);
      const int Distance =
          qAbs(Pixel.red() - Colour.red()) + qAbs(Pixel.green() - Colour.green()) + qAbs(Pixel.blue() - Colour.blue());
      if (Distance < 200) All |= QRect(x, y, 1, 1);
    }
  }
  return All;
}

/// Counts the paint events of a widget and calls `OnPaint` at each.
class PaintCounter : public QObject {
 public:
  explicit PaintCounter(QWidget* Watched) { Watched->installEventFilter(this); }

  int Paints = 0;
  std::function<void()> OnPaint;

  bool eventFilter(QObject*, QEvent* Event) override {
    if (Event->type() == QEvent::Paint) {
      ++Paints;
      if (OnPaint) OnPaint();
    }
    return false;
  }
};

}  // namespace blunko::test
