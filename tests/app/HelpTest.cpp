#include <QLineEdit>
#include <QMessageBox>
#include <QScrollBar>
#include <QTextBlock>
#include <QTreeWidget>

#include "app/HelpWindow.h"
#include "tests/app/Run.h"

namespace blunko::test {
namespace {

const QString HelpFolder = QStringLiteral(TBK_ASSETS "/help");

/// By the window system, which holds back what a modal dialog blocks.
void ClickThrough(QWidget& Window, const QPoint& Place) {
  QTest::mouseClick(Window.windowHandle(), Qt::LeftButton, {}, Place);
}

struct Opened {
  QWidget Table;
  HelpWindow Help{HelpFolder, &Table};
  QTreeWidget& Contents = *Help.Contents;
  QTextBrowser& Page = *Help.Page;

  explicit Opened(const char* Topic) {
    Help.resize(700, 500);
    Help.ShowTopic(QLatin1String(Topic));
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Help));
  }
  std::string Shown() const { return Page.source().toString().section(QLatin1Char('/'), -1).toStdString(); }
  /// Clicks an entry of the contents: whether that has brought its page up.
  bool Goes(int Index) {
    const QPoint Place = Contents.visualItemRect(Contents.topLevelItem(Index)).center();
    ClickThrough(Help, Contents.viewport()->mapTo(&Help, Place));
    return Shown() == HelpWindow::Pages[Index].toStdString();
  }
};

TEST(Help, ContentsHoldTheHeadingsAndGoToThem) {
  Opened Window("Overview.htm");
  EXPECT_EQ(Window.Contents.currentItem(), Window.Contents.topLevelItem(3)) << "the page that is shown is marked";
  for (int i = 0; i < HelpWindow::Pages.size(); ++i) {
    QTreeWidgetItem* Top = Window.Contents.topLevelItem(i);
    EXPECT_EQ(Top->childCount(), BytesOf(HelpFolder + QLatin1Char('/') + HelpWindow::Pages[i]).count("<h2>"));
    for (int k = 0; k < Top->childCount(); ++k) {
      Window.Contents.setCurrentItem(Top->child(k));
      const QString Heading = Window.Page.cursorForPosition({30, 16}).block().text();
      const QScrollBar& Bar = *Window.Page.verticalScrollBar();
      EXPECT_TRUE(Heading == Top->child(k)->text(0) || Bar.value() == Bar.maximum()) << Heading.toStdString();
    }
  }
}

TEST(Help, FindsOnFromPageToPageAndRoundAgain) {
  const struct {
    const char *Why, *Start, *Text, *Keys, *Page;  ///< keys: n for F3, p for Shift+F3
    int Place;                                     ///< of the hit among those of its page, from 0; -1 nothing found
  } Rows[] = {
      {"without regard to case, the next one", "PlayingBlunko.htm", "STRAIGHT", "nn", "PlayingBlunko.htm", 1},
      {"forth and back", "PlayingBlunko.htm", "blunko", "nnp", "PlayingBlunko.htm", 0},
      {"on a later page", "PlayingBlunko.htm", "Ctrl+F", "n", "Overview.htm", 0},
      {"on an earlier page", "Overview.htm", "cousins", "n", "StrategyAndHints.htm", 0},
      {"once only: round to itself", "Overview.htm", "Ctrl+F", "nnn", "Overview.htm", 0},
      {"backward from the top: the page before", "StrategyAndHints.htm", "Tips", "p", "PlayingBlunko.htm", 0},
      {"nowhere", "Overview.htm", "zwieback", "n", "Overview.htm", -1},
      {"nothing asked for", "Overview.htm", "", "n", "Overview.htm", -1},
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(Row.Why);
    Opened Window(Row.Start);
    QTest::keyClick(&Window.Help, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(Window.Help.focusWidget(), QLatin1String(Row.Text));
    for (const char Key : std::string_view(Row.Keys)) {
      QTest::keyClick(Window.Help.txtFind, Qt::Key_F3, Key == 'p' ? Qt::ShiftModifier : Qt::NoModifier);
    }
    EXPECT_EQ(Window.Shown(), Row.Page);
    const QTextCursor Hit = Window.Page.textCursor();
    EXPECT_EQ(Hit.selectedText().toLower(), Row.Place < 0 ? QString() : QString::fromLatin1(Row.Text).toLower());
    EXPECT_EQ(Window.Help.lblFound->text().isEmpty(), Row.Place >= 0 || *Row.Text == '\0');
    if (Row.Place < 0) continue;
    const QString Before = Window.Page.toPlainText().left(Hit.selectionStart());
    EXPECT_EQ(Before.count(QLatin1String(Row.Text), Qt::CaseInsensitive), Row.Place);
  }
}

TEST(Help, GoesBackAndForwardWhereverTheFocusIsAndOutwardLinksLeaveItAsItIs) {
  Opened Window("PlayingBlunko.htm");
  ExpectUsable(Window.Help);
  Window.Help.ShowTopic(QStringLiteral("Overview.htm"));
  for (QWidget* Focus : {static_cast<QWidget*>(&Window.Contents), static_cast<QWidget*>(&Window.Page),
                         static_cast<QWidget*>(Window.Help.txtFind)}) {
    Focus->setFocus();
    QTest::keyClick(Window.Help.windowHandle(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Window.Shown(), "PlayingBlunko.htm");
    EXPECT_FALSE(Window.Help.cmdBack->isEnabled());
    QTest::keyClick(Window.Help.windowHandle(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Window.Shown(), "Overview.htm");
  }
  const Shell Browser;
  emit Window.Page.anchorClicked(QUrl(QStringLiteral("https://example.org/a?b=c")));
  EXPECT_EQ(Browser.Opened, Lines{"https://example.org/a?b=c"});
  EXPECT_EQ(Window.Shown(), "Overview.htm");

  Window.Help.txtFind->setText(QStringLiteral("zwieback"));
  QTest::keyClick(Window.Help.txtFind, Qt::Key_Return);
  EXPECT_NE(Window.Help.lblFound->text(), QString());
  Window.Help.ShowTopic(QStringLiteral("Overview.htm"));
  EXPECT_EQ(Window.Help.lblFound->text(), QString()) << "of the search before";
}

TEST(Help, NarrowItIsAllPageAndBesideTheTable) {
  Opened Window("Overview.htm");
  for (const int Width : {700, 480, 900}) {
    Window.Help.resize(Width, 500);
    EXPECT_EQ(Window.Contents.isVisible(), Width > 640);
    EXPECT_EQ(Window.Help.width(), Width) << "nothing in it needs more";
  }
  Click(Window.Help.cmdContents);
  EXPECT_FALSE(Window.Contents.isVisible());
  const QRect Screen = Window.Table.screen()->availableGeometry();
  Window.Table.setGeometry(Screen.right() - 250, 20, 200, 300);
  Window.Table.show();
  EXPECT_FALSE(HelpWindow(HelpFolder, &Window.Table).geometry().intersects(Window.Table.frameGeometry()));
  Window.Table.move(Screen.left(), 20);
  EXPECT_FALSE(HelpWindow(HelpFolder, &Window.Table).geometry().intersects(Window.Table.frameGeometry()));
}

TEST(Help, SaysWhatIsMissing) {
  const QTemporaryDir Empty;
  const QWidget Table;
  HelpWindow Help(Empty.path(), &Table);
  Help.ShowTopic(QStringLiteral("PlayingBlunko.htm#scoring"));
  EXPECT_TRUE(Help.Page->toPlainText().contains(QLatin1String("missing")));
  EXPECT_TRUE(Help.Page->toPlainText().contains(Empty.path()));
}

TEST(Help, DialogsBlockEveryWindowButTheHelp) {
  Opened Window("PlayingBlunko.htm");
  QPushButton Other;
  int Clicks = 0;
  QObject::connect(&Other, &QPushButton::clicked, [&] { ++Clicks; });
  Other.show();
  const auto ClickBoth = [&](int Page) {
    QTest::qWait(1);
    ClickThrough(Other, Other.rect().center());
    EXPECT_TRUE(Window.Goes(Page));
  };
  ClickBoth(1);
  EXPECT_EQ(Clicks, 1);

  Answers Next;
  QDialog Outer;
  Next.Expect<QDialog>([&](QDialog&) {
    ClickBoth(2);
    Window.Help.close();  // and opened again under the dialog
    Window.Help.ShowTopic(QStringLiteral("Overview.htm"));
    QMessageBox(QMessageBox::NoIcon, {}, QStringLiteral("inner"), {}, &Outer).exec();
    ClickBoth(1);
    Outer.close();
  });
  Next.Expect<QMessageBox>([&](QMessageBox& Inner) {
    ClickBoth(0);
    Inner.close();
  });
  Outer.exec();
  EXPECT_EQ(Clicks, 1) << "blocked meanwhile";
  EXPECT_TRUE(Window.Help.isVisible());
  ClickBoth(2);
  EXPECT_EQ(Clicks, 2);

  Next.Expect<QMessageBox>([&](QMessageBox& Box) {
    EXPECT_FALSE(Window.Goes(1));
    Box.close();
  });
  QMessageBox(QMessageBox::NoIcon, {}, QStringLiteral("over the help itself"), {}, &Window.Help).exec();
}

}  // namespace
}  // namespace blunko::test
