#pragma once

#include <QDialog>

namespace blunko {

/// A dialog with a place of its own beside the table. It goes there before it has a frame: after that a move would
/// count the frame in, whose size nobody knows yet.
class PlacedDialog : public QDialog {
 public:
  using QDialog::QDialog;

  void setVisible(bool Visible) override {
    if (Visible && !isVisible()) move(Corner());
    QDialog::setVisible(Visible);
  }

 protected:
  /// Where the corner of the frame belongs, in screen coordinates.
  virtual QPoint Corner() const = 0;
};

}  // namespace blunko
