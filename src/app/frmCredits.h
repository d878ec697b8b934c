#pragma once

#include <QLabel>
#include <QPixmap>
#include <QTimer>

#include "widgets/ButtonPlus.h"
#include "widgets/PlacedDialog.h"

namespace blunko {

/// Shows a text that moves: centred lines, their upper edge at `Top`. They are drawn once, not with every step.
class ScrollBox : public QWidget {
  Q_OBJECT

 public:
  explicit ScrollBox(QWidget* Parent);

  QString Text;
  int Top = 0;  ///< logical pixels below the upper edge of the box

  /// Height of the text in logical pixels; 0 without a text.
  int TextHeight() const;

 protected:
  void paintEvent(QPaintEvent* Event) override;

 private:
  void DrawText(qreal Scale);

  QPixmap drawn;
};

/// The credits: they scroll up without end, one logical pixel a step.
class frmCredits : public PlacedDialog {
  Q_OBJECT

 public:
  explicit frmCredits(QWidget* Owner);

  /// The credits as they scroll: blocks of lines with an empty line between them.
  static QString CreditsText();

  QLabel* Label1;
  ScrollBox* picScroll;
  ButtonPlus* cmdOK;

 protected:
  void showEvent(QShowEvent* Event) override;

 private:
  void ScrollCredits();
  void Step();

  QTimer steps;
};

}  // namespace blunko
