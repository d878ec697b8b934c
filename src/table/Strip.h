#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <QPoint>

class QPixmap;

namespace blunko {

class frmMain;

/// The strip at the left of the table in which the options panel comes to light. The table keeps its place on the
/// screen.
class Strip : public QObject {
 public:
  explicit Strip(frmMain& Main) : form(Main) {}

  /// `Picture`: what will be seen in the strip.
  void Open(const QPixmap& Picture);
  void Close();

 protected:
  /// A press belongs to the window as it was when it was made: one that waited while the strip opened or closed is
  /// nobody's.
  bool eventFilter(QObject* Window, QEvent* Event) override;

 private:
  void SetWidth(int Width, const QImage& Whole);

  frmMain& form;
  QPoint closed, opened;    ///< the window's place before the strip was opened, and what the manager then made of it
  QDeadlineTimer settling;  ///< while what the manager makes of a change may come in
  bool nobodys = false;     ///< the press that the mouse holds was made for another place than it would hit now
};

}  // namespace blunko
