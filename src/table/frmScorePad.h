#pragma once

#include <QWidget>

#include <array>

#include "engine/Module1.h"
#include "widgets/FitLabel.h"

namespace blunko {

/// The small window beside the table with every seat's banked score. It holds no state: it copies the shared state
/// whenever it is told.
class frmScorePad : public QWidget {
  Q_OBJECT

 public:
  frmScorePad(const Module1& State, QWidget* Table);

  /// Takes its place to the right of the table, or to the left where the screen ends. What hangs on the table, as on
  /// Wayland, is hidden by it.
  void SetPosition();
  /// What the pad consists of for a listener: its headings, and a line for every seat in play.
  QList<QWidget*> Rows() const;
  /// Brings marks, fonts and scores up to date.
  void UpdateActivePlayer();

 protected:
  bool eventFilter(QObject* Of, QEvent* Event) override;
  bool nativeEvent(const QByteArray& Type, void* Message, qintptr* Result) override;
  void showEvent(QShowEvent* Event) override;
  void paintEvent(QPaintEvent* Event) override;

 private:
  void Form_Activate();

  const Module1& m;
  QWidget* table;
  bool turned = false;  ///< it hangs at the left
  FitLabel* lblGoal;
  FitLabel* label_break_in;
  FitLabel* Label2;
  FitLabel* Label3;
  std::array<FitLabel*, MaxSeats> lblPlayer;
  std::array<FitLabel*, MaxSeats> lblScore;
};

}  // namespace blunko
