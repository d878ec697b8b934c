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
  std::string Shown() const { return Page.source().fileName().toStdString(); }
  /// Clicks an entry of the contents: whether that has brought its page up.
  bool Goes(int Index) {
    const QPoint Place = Contents.visualItemRect(Contents.topLevelItem(Index)).center();
    ClickThrough(Help, Contents.viewport()->mapTo(&Help, Place));
    return Shown() == HelpWindow::Pages[Index].toStdString();
  }
};

TEST(Help, ContentsGoToTheHeadingsAndLinksOutward) {
  Opened Window("Overview.htm");
  ExpectUsable(Window.Help);
  EXPECT_EQ(Window.Contents.currentItem(), Window.Contents.topLevelItem(3)) << "the page that is shown is marked";
  for (QTreeWidgetItemIterator Entry(&Window.Contents); *Entry != nullptr; ++Entry) {
    Window.Contents.setCurrentItem(*Entry);
    const QString Heading = Window.Page.cursorForPosition({30, 16}).block().text();
    const QScrollBar& Bar = *Window.Page.verticalScrollBar();
    EXPECT_TRUE(Heading == (*Entry)->text(0) || Bar.value() == Bar.maximum()) << Heading.toStdString();
  }
  const Shell Browser;
  emit Window.Page.anchorClicked(QUrl(QStringLiteral("https://example.org/a?b=c")));
  EXPECT_EQ(Browser.Opened, Lines{"https://example.org/a?b=c"});
  EXPECT_EQ(Window.Shown(), "Overview.htm");
}

TEST(Help, FindsOnFromPageToPageAndRoundAgain) {
  const struct {
    const char *Why, *Start, *Text, *Keys, *Page;  ///< keys: n for F3, p for Shift+F3
    int Place;                                     ///< of the hit among those of its page, from 0; -1 nothing found
  } Rows[] = {
      {"without regard to case, the next one", "PlayingBlunko.htm", "STRAIGHT", "nn", "PlayingBlunko.htm", 1},
      {"forth and back", "PlayingBlunko.htm", "blunko", "nnp", "PlayingBlunko.htm", 0},
      {"on an earlier page", "Overview.htm", "cousins", "n", "StrategyAndHints.htm", 0},
      {"once only: round to itself", "Overview.htm", "Ctrl+F", "nnn", "Overview.htm", 0},
      {"backward from the top: the page before", "StrategyAndHints.htm", "Tips", "p", "PlayingBlunko.htm", 0},
      {"nowhere", "Overview.htm", "zwieback", "n", "Overview.htm", -1},
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
    EXPECT_EQ(Window.Help.lblFound->text().isEmpty(), Row.Place >= 0);
    const QString Before = Window.Page.toPlainText().left(Window.Page.textCursor().selectionEnd());
    EXPECT_EQ(Before.count(QLatin1String(Row.Text), Qt::CaseInsensitive), Row.Place + 1);
  }
}

TEST(Help, SaysWhatIsMissing) {
  const QWidget Table;
  HelpWindow Help(QStringLiteral("/nowhere"), &Table);
  Help.ShowTopic(QStringLiteral("PlayingBlunko.htm#scoring"));
  EXPECT_TRUE(Help.Page->toPlainText().contains(QLatin1String("/nowhere")));
}

TEST(Help, DialogsBlockEveryWindowButTheHelp) {
  Opened Window("PlayingBlunko.htm");
  QPushButton Other;
  int Clicks = 0;
  QObject::connect(&Other, &QPushButton::clicked, [&] { ++Clicks; });
  Other.show();
  const auto ClickBoth = [&](int Page, int Expected) {
    QTest::qWait(1);
    ClickThrough(Other, Other.rect().center());
    EXPECT_TRUE(Window.Goes(Page));
    EXPECT_EQ(Clicks, Expected);
  };
  ClickBoth(1, 1);
  Answers Next;
  QDialog Outer;
  Next.Expect<QDialog>([&](QDialog&) {
    ClickBoth(2, 1);
    Window.Help.close();  // and opened again under the dialog
    Window.Help.ShowTopic(QStringLiteral("Overview.htm"));
    QMessageBox(QMessageBox::NoIcon, {}, QStringLiteral("inner"), {}, &Outer).exec();
    ClickBoth(1, 1);
    Outer.close();
  });
  Next.Expect<QMessageBox>([&](QMessageBox& Inner) {
    ClickBoth(0, 1);
    Inner.close();
  });
  Outer.exec();
  EXPECT_TRUE(Window.Help.isVisible());
  ClickBoth(2, 2);
}

}  // namespace
}  // namespace blunko::test
