#include "app/HelpWindow.h"

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWindow>

#include "app/OpenInShell.h"
#include "widgets/Fonts.h"
#include "widgets/Pictures.h"

namespace blunko {

namespace {

constexpr int ContentsWidth = 210;                                      // px
constexpr int NarrowestWindow = 720, WidestWindow = 820, Height = 640;  // px
constexpr int Gap = 12;                                                 // px between help and table
constexpr int AddressRole = Qt::UserRole;
const QColor Paper(253, 252, 247), Ink(32, 33, 48), FoundColour(255, 214, 92);

/// The first anchor in a block, empty without one.
QString AnchorOf(const QTextBlock& Block) {
  for (auto Piece = Block.begin(); !Piece.atEnd(); ++Piece) {
    const QStringList Names = Piece.fragment().charFormat().anchorNames();
    if (!Names.isEmpty()) return Names.first();
  }
  return {};
}

}  // namespace

QVariant HelpPage::loadResource(int Type, const QUrl& Address) {
  const QString File = Address.toLocalFile();
  if (Type == QTextDocument::ImageResource && File.endsWith(QLatin1String(".svg"))) {
    return RenderSvg(File, devicePixelRatioF());
  }
  if (Type == QTextDocument::HtmlResource && !QFileInfo(File).isFile()) {
    return QStringLiteral(
               "<h1>This page is missing</h1><p>The help page <b>%1</b> should lie in the "
               "folder</p><p><code>%2</code></p>"
               "<p>but isn't there. Installing the game once more brings it back; the game itself plays on without "
               "it.</p>")
        .arg(QFileInfo(File).fileName().toHtmlEscaped(),
             QDir::toNativeSeparators(QFileInfo(File).path()).toHtmlEscaped());
  }
  return QTextBrowser::loadResource(Type, Address);
}

const QStringList HelpWindow::Pages{QStringLiteral("PlayingBlunko.htm"), QStringLiteral("StrategyAndHints.htm"),
                                    QStringLiteral("FairDice.htm"), QStringLiteral("Overview.htm")};

HelpWindow::HelpWindow(const QString& Folder, const QWidget* Beside) : folder(Folder) {
  setObjectName(QStringLiteral("HelpWindow"));
  setWindowTitle(QStringLiteral("Tollmoor Blunko Help"));
  setFont(FontOf(Typeface::Verdana, 8.25));
  Build();
  FillContents();
  PlaceBeside(Beside);
}

void HelpWindow::Build() {
  const auto Button = [this](const char* Name, const QString& Caption, const QString& Tip, auto Run) {
    auto* Made = new ButtonPlus(Caption, this);
    Made->setObjectName(QLatin1String(Name));
    Made->setFont(FontOf(Typeface::Verdana, 8.25));
    Made->setToolTip(Tip);
    connect(Made, &QPushButton::clicked, this, Run);
    return Made;
  };
  Contents = new QTreeWidget(this);
  Contents->setObjectName(QStringLiteral("Contents"));
  Contents->setAccessibleName(QStringLiteral("Contents"));
  Contents->setHeaderHidden(true);
  Contents->setIndentation(14);
  Contents->setTextElideMode(Qt::ElideRight);
  Page = new HelpPage(this);
  Page->setObjectName(QStringLiteral("Page"));
  Page->setOpenLinks(false);
  Page->setWordWrapMode(QTextOption::WordWrap);  // no table column narrower than its words
  Page->setFont(FontOf(Typeface::Verdana, 9.75));
  QPalette Colours = Page->palette();
  Colours.setColor(QPalette::Base, Paper);
  Colours.setColor(QPalette::Text, Ink);
  Colours.setColor(QPalette::Highlight, FoundColour);  // seen also while the focus is in the find line
  Colours.setColor(QPalette::HighlightedText, Ink);
  Page->setPalette(Colours);

  cmdBack = Button("cmdBack", QStringLiteral("Back"), QStringLiteral("The page before (Alt+Left)"),
                   [this] { Page->backward(); });
  cmdForward = Button("cmdForward", QStringLiteral("Forward"), QStringLiteral("The page after (Alt+Right)"),
                      [this] { Page->forward(); });
  txtFind = new QLineEdit(this);
  txtFind->setObjectName(QStringLiteral("txtFind"));
  txtFind->setPlaceholderText(QStringLiteral("Find (Ctrl+F)"));
  txtFind->setAccessibleName(QStringLiteral("Find"));
  txtFind->setClearButtonEnabled(true);
  txtFind->setFixedWidth(190);
  cmdFindPrevious = Button("cmdFindPrevious", QStringLiteral("Previous"), QStringLiteral("Find backward (Shift+F3)"),
                           [this] { Find(true); });
  cmdFindNext =
      Button("cmdFindNext", QStringLiteral("Next"), QStringLiteral("Find again (F3)"), [this] { Find(false); });
  lblFound = new QLabel(this);
  lblFound->setObjectName(QStringLiteral("lblFound"));

  auto* Bar = new QHBoxLayout;
  Bar->setSpacing(6);
  for (QWidget* Piece : {static_cast<QWidget*>(cmdBack), static_cast<QWidget*>(cmdForward)}) Bar->addWidget(Piece);
  Bar->addStretch();
  for (QWidget* Piece : {static_cast<QWidget*>(lblFound), static_cast<QWidget*>(txtFind),
                         static_cast<QWidget*>(cmdFindPrevious), static_cast<QWidget*>(cmdFindNext)}) {
    Bar->addWidget(Piece);
  }
  auto* Halves = new QSplitter(this);
  Halves->setChildrenCollapsible(false);
  Halves->addWidget(Contents);
  Halves->addWidget(Page);
  Halves->setSizes({ContentsWidth, WidestWindow - ContentsWidth});
  Halves->setStretchFactor(1, 1);
  auto* Column = new QVBoxLayout(this);
  Column->setContentsMargins(8, 8, 8, 8);
  Column->addLayout(Bar);
  Column->addWidget(Halves, 1);

  const auto Key = [this](const QKeySequence& Keys, auto Run) {
    connect(new QShortcut(Keys, this), &QShortcut::activated, this, Run);
  };
  Key(Qt::Key_Escape, [this] { close(); });
  Key(QKeySequence::Find, [this] {
    txtFind->setFocus();
    txtFind->selectAll();
  });
  Key(Qt::Key_F3, [this] { Find(false); });
  Key(Qt::SHIFT | Qt::Key_F3, [this] { Find(true); });

  cmdBack->setEnabled(false);
  cmdForward->setEnabled(false);
  connect(Page, &QTextBrowser::backwardAvailable, cmdBack, &QWidget::setEnabled);
  connect(Page, &QTextBrowser::forwardAvailable, cmdForward, &QWidget::setEnabled);
  connect(Page, &QTextBrowser::sourceChanged, this, &HelpWindow::MarkInContents);
  connect(Page, &QTextBrowser::anchorClicked, this, &HelpWindow::Follow);
  connect(txtFind, &QLineEdit::returnPressed, this, [this] { Find(false); });
  connect(txtFind, &QLineEdit::textChanged, lblFound, &QLabel::clear);
  const auto Open = [this](const QTreeWidgetItem* Chosen) {
    if (Chosen != nullptr) Page->setSource(Chosen->data(0, AddressRole).toUrl());
  };
  connect(Contents, &QTreeWidget::currentItemChanged, this, Open);
  connect(Contents, &QTreeWidget::itemClicked, this, Open);  // also where one has scrolled away from the chosen heading
}

/// The headings of the pages, as they stand there.
void HelpWindow::FillContents() {
  for (const QString& Name : Pages) {
    const QUrl Address = AddressOf(Name);
    auto* Top = new QTreeWidgetItem(Contents, {QFileInfo(Name).completeBaseName()});
    Top->setData(0, AddressRole, Address);
    QFont Bold = Contents->font();
    Bold.setBold(true);
    Top->setFont(0, Bold);
    QTextDocument Document;
    QFile File(Address.toLocalFile());
    if (File.open(QIODevice::ReadOnly)) Document.setHtml(QString::fromUtf8(File.readAll()));
    pageTexts += Document.toPlainText();
    for (QTextBlock Block = Document.begin(); Block.isValid(); Block = Block.next()) {
      const int Level = Block.blockFormat().headingLevel();
      if (Level == 1) Top->setText(0, Block.text());
      if (Level != 2) continue;
      QUrl Place = Address;
      Place.setFragment(AnchorOf(Block));
      (new QTreeWidgetItem(Top, {Block.text()}))->setData(0, AddressRole, Place);
    }
    Top->setExpanded(true);
  }
}

/// To the left of the table, where the score pad isn't; over it only on a screen without room.
void HelpWindow::PlaceBeside(const QWidget* Table) {
  const QRect Screen = Table->screen()->availableGeometry();
  const int Room = Table->frameGeometry().left() - Screen.left() - 2 * Gap;
  resize(qBound(NarrowestWindow, Room, WidestWindow), qMin(Height, Screen.height() - 4 * Gap));
  const int Left = Table->frameGeometry().left() - Gap - width();
  const int Frame = Table->frameGeometry().height() - Table->height();
  const int Lowest = qMax(Screen.top(), Screen.bottom() - height() - Frame);
  move(qMax(Screen.left(), Left), qBound(Screen.top(), Table->frameGeometry().top(), Lowest));
}

QUrl HelpWindow::AddressOf(const QString& Topic) const {
  QUrl Address = QUrl::fromLocalFile(folder + QLatin1Char('/') + Topic.section(QLatin1Char('#'), 0, 0));
  if (Topic.contains(QLatin1Char('#'))) Address.setFragment(Topic.section(QLatin1Char('#'), 1));
  return Address;
}

void HelpWindow::ShowTopic(const QString& Topic) {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
  Page->setFocus();
  Page->setSource(AddressOf(Topic));  // the window has its size by now, or the anchor would miss its place
}

/// Pages open here, everything else in the system's own programs.
void HelpWindow::Follow(const QUrl& Link) {
  if (Link.isLocalFile()) {
    Page->setSource(Link);
  } else {
    OpenInShell(Link.toString());
  }
}

/// The page itself doesn't know its new address yet when it tells of it.
void HelpWindow::MarkInContents(const QUrl& Source) {
  const QSignalBlocker Quiet(Contents);
  QTreeWidgetItem* Best = nullptr;
  for (QTreeWidgetItemIterator Item(Contents); *Item != nullptr; ++Item) {
    const QUrl Address = (*Item)->data(0, AddressRole).toUrl();
    const bool SamePage = Address == Source.adjusted(QUrl::RemoveFragment);
    if (Address == Source || (SamePage && Best == nullptr)) Best = *Item;
  }
  Contents->setCurrentItem(Best);
}

/// On this page, then on the pages after it, and round to this one's other end.
void HelpWindow::Find(bool Backward) {
  const QString Wanted = txtFind->text();
  lblFound->clear();
  if (Wanted.isEmpty()) {
    txtFind->setFocus();
    return;
  }
  const QTextDocument::FindFlags Flags = Backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  if (Page->find(Wanted, Flags)) return;
  const auto Count = static_cast<int>(Pages.size());
  const int Here = qMax(0, static_cast<int>(Pages.indexOf(Page->source().fileName())));
  for (int Step = 1; Step <= Count; ++Step) {
    const int There = (Here + (Backward ? Count - Step : Step)) % Count;
    if (!pageTexts[There].contains(Wanted, Qt::CaseInsensitive)) continue;
    if (There != Here) Page->setSource(AddressOf(Pages[There]));
    Page->moveCursor(Backward ? QTextCursor::End : QTextCursor::Start);
    Page->find(Wanted, Flags);
    return;
  }
  lblFound->setText(QStringLiteral("Not found"));
}

bool HelpWindow::event(QEvent* Event) {
  if (Event->type() == QEvent::WindowBlocked) JoinDialog();
  return QWidget::event(Event);
}

/// A dialog blocks every window but its own: so the help becomes one of its own, for as long as it is open.
void HelpWindow::JoinDialog() {
  QWindow* Dialog = QGuiApplication::modalWindow();
  for (const QWindow* Owner = Dialog; Owner != nullptr; Owner = Owner->transientParent()) {
    if (Owner == windowHandle()) return;  // a box of the help's own
  }
  windowHandle()->setTransientParent(Dialog);
  // Once it has gone, the dialog under it takes over.
  if (Dialog != nullptr) {
    connect(Dialog, &QWindow::visibleChanged, this, &HelpWindow::JoinDialog,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
  }
}

}  // namespace blunko
