#pragma once

#include <QDialog>
#include <QMargins>

#include "widgets/Materials.h"

class QWindow;

namespace blunko {

// Frames are told here alone. What the toolkit tells of the frame of a window that has never been shown isn't true,
// and how it means a corner changes then: the place of the inside holds always.

/// Whether a window can be put anywhere: Wayland places only what hangs on another window.
bool PlacesWindows();
/// The frame round a window. One that isn't shown will get its owner's.
QMargins FrameOf(const QWidget& Window);
/// The place of a window on the screen, frame included.
QRect FramePlace(const QWidget& Window);
/// Gives a window that may have been shown a size that only the program changes. Openbox takes whole steps of the scale
/// from the base: that is the size itself.
void FixSize(QWidget& Window, QSize Size);
/// On Wayland the frame that the toolkit draws has a button that maximises whatever it is round, and weston ends a
/// program whose window doesn't grow then: one of a fixed size grows, and goes back.
void LetGrow(QWindow& Window);
/// Puts a window, shown or not, where the corner of its frame belongs on the screen. Its size is final.
void PlaceFrame(QWidget& Window, QPoint Corner);
/// Puts a window that has been shown so that the corner of its inside lies there, whatever frame it had or gets.
void PlaceInside(QWidget& Window, QPoint Corner);
/// Puts a window with its frame in the middle of its owner's, or of the screen, and moves it in where the screen ends.
void CentreFrame(QWidget& Window, const QWidget* Owner = nullptr);
/// On a screen that is lower than a window with its frame: moves it up and down, so that all of it can be reached.
void ShiftOnLowScreen(QWidget& Window, int Down);
/// Moves it so that what has the focus is seen.
void ShowFocusOnLowScreen(QWidget& Window);

/// A dialog that comes up at its place, frame included: in the middle of its owner's frame, unless it has another. It
/// is lined with satin.
class PlacedDialog : public QDialog {
 public:
  PlacedDialog(QWidget* Owner, const QString& Name, const QString& Title, Cloth Satin = Cloth::Pearl,
               Qt::WindowFlags Flags = {});

  void setVisible(bool Visible) override;

 protected:
  /// Goes to where the dialog belongs; called before it comes up, in its final size.
  virtual void Place();
  void changeEvent(QEvent* Event) override;
  bool focusNextPrevChild(bool Next) override;
  void wheelEvent(QWheelEvent* Event) override;
  void paintEvent(QPaintEvent* Event) override;

  QList<QWidget*> framed;  ///< parts round which the dialog draws a frame of walnut

 private:
  Cloth lining;
};

}  // namespace blunko
