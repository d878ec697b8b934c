#include "app/HelpWindow.h"

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPainter>
#include <QResizeEvent>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWindow>

#include "widgets/FormBuilder.h"
#include "widgets/Pictures.h"
#include "widgets/PlacedDialog.h"

namespace blunko {

namespace {

constexpr int ContentsWidth = 210;                                      // px
constexpr int NarrowestWindow = 470, WidestWindow = 820, Height = 640;  // px
constexpr int FoldingWidth = 640;                                       // px: below, the contents are folded away
constexpr int Gap = 4;                                                  // px between help and table
constexpr int AddressRole = Qt::UserRole;

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
  if (File.endsWith(QLatin1String(".svg"))) return RenderSvg(File, devicePixelRatioF());
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

bool HelpPage::focusNextPrevChild(bool Next) {
  const bool Moved = QTextBrowser::focusNextPrevChild(Next);
  if (hasFocus() && textCursor().hasSelection()) emit linkReached(textCursor().selectedText());
  return Moved;
}

const QStringList HelpWindow::Pages{QStringLiteral("PlayingBlunko.htm"), QStringLiteral("StrategyAndHints.htm"),
                                    QStringLiteral("FairDice.htm"), QStringLiteral("Overview.htm")};

HelpWindow::HelpWindow(const QString& Folder, const QWidget* Beside) : folder(Folder) {
  setObjectName("HelpWindow");
  setWindowTitle("Tollmoor Blunko Help");
  setFont(FontOf(Typeface::Verdana, 11));
  BuildControls();
  LayOut();
  ConnectControls();
  ConnectKeys();
  for (const QString& Name : Pages) AddPage(Name);
  setStyleSheet(PaperStyle());
  PlaceBeside(Beside);
}

/// In the order of the eye, which is that of Tab.
void HelpWindow::BuildControls() {
  cmdContents = Make<ButtonPlus>(this, "cmdContents", "Contents");
  cmdContents->setCheckable(true);
  cmdBack = MakeButton(this, "cmdBack", "Back", [this] { Page->backward(); });
  cmdForward = MakeButton(this, "cmdForward", "Forward", [this] { Page->forward(); });
  lblFound = MakeText(this, "lblFound", {}, font());
  Contents = Make<QTreeWidget>(this, "Contents");
  Contents->setAccessibleName("Contents");
  Contents->setHeaderHidden(true);
  Contents->setIndentation(14);
  Contents->setTextElideMode(Qt::ElideRight);
  Contents->hide();
  BuildPage();
  txtFind = Make<QLineEdit>(this, "txtFind");
  txtFind->setPlaceholderText("Find (Ctrl+F)");
  txtFind->setAccessibleName("Find");
  txtFind->setClearButtonEnabled(true);
  cmdFindPrevious = MakeButton(this, "cmdFindPrevious", "Previous", [this] { Find(true); });
  cmdFindNext = MakeButton(this, "cmdFindNext", "Next", [this] { Find(false); });
}

void HelpWindow::BuildPage() {
  Page = Make<HelpPage>(this, "Page");
  Page->setAccessibleName("Page");
  Page->setOpenExternalLinks(true);
  Page->setTextInteractionFlags(Page->textInteractionFlags() | Qt::TextSelectableByKeyboard);  // a caret, for readers
  Page->setWordWrapMode(QTextOption::WordWrap);  // no table column narrower than its words
  Page->setFont(FontOf(Typeface::Verdana, 13));
  SetColours(*Page, {{QPalette::Text, Shade},
                     {QPalette::Highlight, Gilt},  // seen also while the focus is in the find line
                     {QPalette::HighlightedText, Shade}});
}

void HelpWindow::LayOut() {
  auto* Bar = new QHBoxLayout;
  Bar->setSpacing(6);
  for (ButtonPlus* Button : {cmdContents, cmdBack, cmdForward}) Bar->addWidget(Button);
  Bar->addStretch();
  Bar->addWidget(lblFound);
  auto* Halves = new QSplitter(this);
  Halves->setChildrenCollapsible(false);
  Halves->addWidget(Contents);
  Halves->addWidget(Page);
  Halves->setSizes({ContentsWidth, WidestWindow - ContentsWidth});
  Halves->setStretchFactor(1, 1);
  auto* Search = new QHBoxLayout;
  Search->setSpacing(6);
  const std::initializer_list<QWidget*> Finding{txtFind, cmdFindPrevious, cmdFindNext};
  for (QWidget* Part : Finding) Search->addWidget(Part);
  auto* Column = new QVBoxLayout(this);
  Column->setContentsMargins(8, 8, 8, 8);
  Column->addLayout(Bar);
  Column->addWidget(Halves, 1);
  Column->addLayout(Search);
}

void HelpWindow::ConnectControls() {
  connect(cmdContents, &QAbstractButton::toggled, Contents, &QWidget::setVisible);
  connect(Page, &QTextBrowser::backwardAvailable, cmdBack, &QWidget::setEnabled);
  connect(Page, &QTextBrowser::forwardAvailable, cmdForward, &QWidget::setEnabled);
  connect(Page, &QTextBrowser::sourceChanged, this, &HelpWindow::MarkInContents);
  connect(Page, &QTextBrowser::sourceChanged, this, &HelpWindow::PlaceCaret);
  connect(Page, &HelpPage::linkReached, this, [this](const QString& Words) { emit told(Words + ", link"); });
  connect(Page, &QTextBrowser::sourceChanged, lblFound, &QLabel::clear);
  connect(txtFind, &QLineEdit::returnPressed, cmdFindNext, &QAbstractButton::click);
  connect(txtFind, &QLineEdit::textChanged, lblFound, &QLabel::clear);
  connect(Contents, &QTreeWidget::currentItemChanged, this, &HelpWindow::GoTo);
  connect(Contents, &QTreeWidget::itemClicked, this, &HelpWindow::GoTo);  // also from a heading that is chosen already
}

/// Wherever the focus is.
void HelpWindow::ConnectKeys() {
  const auto Key = [this](const QKeySequence& Keys, auto Run) {
    connect(new QShortcut(Keys, this), &QShortcut::activated, this, Run);
  };
  Key(Qt::Key_Escape, [this] { close(); });
  Key(QKeySequence::Find, [this] {
    txtFind->setFocus();
    txtFind->selectAll();
  });
  const std::tuple<ButtonPlus*, QKeySequence, const char*> Ways[] = {
      {cmdContents, {}, "Show or hide the contents"},
      {cmdBack, Qt::ALT | Qt::Key_Left, "The page before (Alt+Left)"},
      {cmdForward, Qt::ALT | Qt::Key_Right, "The page after (Alt+Right)"},
      {cmdFindPrevious, Qt::SHIFT | Qt::Key_F3, "Find backward (Shift+F3)"},
      {cmdFindNext, Qt::Key_F3, "Find again (F3)"}};
  for (const auto& [Button, Keys, Tip] : Ways) {
    Button->setFont(font());
    Button->setToolTip(Tip);
    Key(Keys, [Clicked = Button] { Clicked->click(); });
  }
}

void HelpWindow::GoTo(const QTreeWidgetItem* Entry) {
  if (Entry != nullptr) Page->setSource(Entry->data(0, AddressRole).toUrl());
}

/// The headings of a page, as they stand there.
void HelpWindow::AddPage(const QString& Name) {
  const QUrl Address = AddressOf(Name);
  auto* Top = new QTreeWidgetItem(Contents, {QFileInfo(Name).completeBaseName()});
  Top->setData(0, AddressRole, Address);
  Top->setFont(0, FontOf(Typeface::Verdana, 11, true));
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

/// To the left of the table, where the score pad isn't, or to its right; over it only on a screen without room.
void HelpWindow::PlaceBeside(const QWidget* Table) {
  const QRect Screen = Table->screen()->availableGeometry(), Frame = FramePlace(*Table->window());
  const QMargins Around = FrameOf(*Table->window());
  const int LeftRoom = Frame.left() - Screen.left() - Gap, RightRoom = Screen.right() - Frame.right() - Gap;
  const int Sides = Around.left() + Around.right(), UpAndDown = Around.top() + Around.bottom();
  const bool AtRight = LeftRoom - Sides < NarrowestWindow && RightRoom - Sides >= NarrowestWindow;
  resize(qBound(NarrowestWindow, (AtRight ? RightRoom : LeftRoom) - Sides, WidestWindow),
         qMin(Height, Screen.height() - UpAndDown));
  const int Left = AtRight ? Screen.right() + 1 - width() - Sides : Frame.left() - Gap - width() - Sides;
  const int Lowest = qMax(Screen.top(), Screen.bottom() + 1 - height() - UpAndDown);
  PlaceFrame(*this, {qMax(Screen.left(), Left), qBound(Screen.top(), Frame.top(), Lowest)});
}

void HelpWindow::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  DrawLining(Painter, rect(), Cloth::Pearl);
}

/// A narrow window is all page.
void HelpWindow::resizeEvent(QResizeEvent* Event) {
  QWidget::resizeEvent(Event);
  const bool Wide = width() >= FoldingWidth, WasWide = Event->oldSize().width() >= FoldingWidth;
  if (Wide != WasWide) cmdContents->setChecked(Wide);
}

QUrl HelpWindow::AddressOf(const QString& Topic) const {
  return QUrl::fromLocalFile(folder + QLatin1Char('/')).resolved(QUrl(Topic));
}

void HelpWindow::ShowTopic(const QString& Topic) {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
  Page->setFocus();
  Page->setSource(AddressOf(Topic));  // the window has its size by now, or the anchor would miss its place
}

/// The page itself doesn't know its new address yet when it tells of it.
void HelpWindow::MarkInContents(const QUrl& Source) {
  const QSignalBlocker Quiet(Contents);
  QTreeWidgetItem* Best = nullptr;
  for (QTreeWidgetItemIterator Item(Contents); *Item != nullptr; ++Item) {
    const QUrl Address = (*Item)->data(0, AddressRole).toUrl();
    if (Address == Source.adjusted(QUrl::RemoveFragment) || Address == Source) Best = *Item;
  }
  Contents->setCurrentItem(Best);
}

/// At the start of the topic.
void HelpWindow::PlaceCaret(const QUrl& Source) {
  QTextBlock Block = Page->document()->begin();
  if (Source.hasFragment()) {
    while (Block.isValid() && AnchorOf(Block) != Source.fragment()) Block = Block.next();
  }
  if (Block.isValid()) Page->setTextCursor(QTextCursor(Block));
}

void HelpWindow::Find(bool Backward) {
  if (txtFind->text().isEmpty()) return txtFind->setFocus();
  const bool Found = FindInPages(txtFind->text(), Backward ? QTextDocument::FindBackward : QTextDocument::FindFlags());
  lblFound->setText(Found ? QString() : QStringLiteral("Not found"));
  emit told(Found ? Page->textCursor().block().text() : lblFound->text());
}

/// On this page, then on the pages after it, and round to this one's other end.
bool HelpWindow::FindInPages(const QString& Wanted, QTextDocument::FindFlags Flags) {
  if (Page->find(Wanted, Flags)) return true;
  const bool Backward = Flags.testFlag(QTextDocument::FindBackward);
  const auto Count = static_cast<int>(Pages.size());
  const int Here = qMax(0, static_cast<int>(Pages.indexOf(Page->source().fileName())));
  for (int Step = 1; Step <= Count; ++Step) {
    const int There = (Here + (Backward ? Count - Step : Step)) % Count;
    if (!pageTexts[There].contains(Wanted, Qt::CaseInsensitive)) continue;
    if (There != Here) Page->setSource(AddressOf(Pages[There]));
    Page->moveCursor(Backward ? QTextCursor::End : QTextCursor::Start);
    return Page->find(Wanted, Flags);
  }
  return false;
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
