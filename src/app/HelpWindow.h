#pragma once

#include <QStringList>
#include <QTextBrowser>
#include <QWidget>

#include "widgets/ButtonPlus.h"

class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace blunko {

/// Shows the pages of a folder, their pictures sharp at every scale. A page that isn't there says so.
class HelpPage : public QTextBrowser {
  Q_OBJECT

 public:
  using QTextBrowser::QTextBrowser;

  QVariant loadResource(int Type, const QUrl& Address) override;

 signals:
  /// Tab has come to one with these words.
  void linkReached(const QString& Words);

 protected:
  bool focusNextPrevChild(bool Next) override;
};

/// The help: a window of its own beside the game, with a table of contents and a search. It can be used while a dialog
/// of the game is open, and stays when that closes.
class HelpWindow : public QWidget {
  Q_OBJECT

 public:
  /// `Folder` holds the pages; the window first comes up beside `Beside`.
  HelpWindow(const QString& Folder, const QWidget* Beside);

  /// The pages, in the order of the table of contents.
  static const QStringList Pages;

  /// Brings the window up at a page, "Name.htm" or "Name.htm#anchor".
  void ShowTopic(const QString& Topic);

  QTreeWidget* Contents;
  HelpPage* Page;
  ButtonPlus* cmdContents;  ///< folds the contents away, and out again
  ButtonPlus *cmdBack, *cmdForward, *cmdFindPrevious, *cmdFindNext;
  QLineEdit* txtFind;
  QLabel* lblFound;

 signals:
  /// To whoever can't see where on the page something is.
  void told(const QString& Text);

 protected:
  bool event(QEvent* Event) override;
  void paintEvent(QPaintEvent* Event) override;
  void resizeEvent(QResizeEvent* Event) override;

 private:
  void BuildPage();
  void BuildControls();
  void LayOut();
  void ConnectControls();
  void ConnectKeys();
  void AddPage(const QString& Name);
  void PlaceBeside(const QWidget* Table);
  void GoTo(const QTreeWidgetItem* Entry);
  QUrl AddressOf(const QString& Topic) const;
  void MarkInContents(const QUrl& Source);
  void PlaceCaret(const QUrl& Source);
  void Find(bool Backward);
  bool FindInPages(const QString& Wanted, QTextDocument::FindFlags Flags);
  void JoinDialog();

  QString folder;
  QStringList pageTexts;  ///< what the search reads, in the order of `Pages`
};

}  // namespace blunko
