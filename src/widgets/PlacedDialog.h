#pragma once

#include <QDialog>
#include <QMargins>

namespace blunko {

/// The frame round a window: as it is, or before the window is shown, as it will be.
QMargins FrameOf(QWidget& Window);
/// Puts a window where the corner of its frame belongs on the screen. Its size is final.
void PlaceFrame(QWidget& Window, QPoint Corner);
/// Puts a window with its frame in the middle of a place on the screen, and moves it in where the screen ends.
void CentreFrame(QWidget& Window, const QRect& Place);

/// A dialog that comes up at its place, frame included: in the middle of its owner's frame, unless it has another.
class PlacedDialog : public QDialog {
 public:
  using QDialog::QDialog;

  void setVisible(bool Visible) override;

 protected:
  /// Goes to where the dialog belongs; called before it comes up, in its final size.
  virtual void Place();
};

}  // namespace blunko
