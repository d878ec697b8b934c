#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTreeWidget>

#include "app/HelpWindow.h"
#include "tests/app/Run.h"

namespace blunko::test {

struct Opened {
  QWidget Table;
  HelpWindow Help{QStringLiteral(TBK_ASSETS "/help"), &Table};
  QTreeWidget& Contents = *Help.Contents;
  QTextBrowser& Page = *Help.Page;

  explicit Opened(const char* Topic) {
    InstallAccessibility();
    Help.resize(640, 500);
    Help.showMinimized();
    Help.ShowTopic(QLatin1String(Topic));
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Help) && !Help.isMinimized());
  }
  QString Shown() const { return Page.source().fileName(); }
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
    EXPECT_EQ(Window.Page.textCursor().block().text(), (*Entry)->text(0)) << "a reader goes on from there";
    EXPECT_EQ(Window.Contents.currentItem(), *Entry);
  }
  const Answers Next;
  const QSignalSpy Told(&Window.Help, &HelpWindow::told);
  Window.Page.setHtml(QStringLiteral("<a href='https://example.org/a?b=c'>outward</a>"));
  for (const auto Key : {Qt::Key_Tab, Qt::Key_Return}) QTest::keyClick(&Window.Page, Key);
  EXPECT_EQ(Next.Opened, Lines{"https://example.org/a?b=c"});
  EXPECT_EQ(Told.value(0).value(0).toString(), QLatin1String("outward, link"));
  Window.Help.resize(639, 500);
  EXPECT_FALSE(Window.Contents.isVisible()) << "a narrow window is all page";
  Window.Help.ShowTopic(QStringLiteral("gone.htm"));
  EXPECT_THAT(Window.Page.toPlainText().toStdString(), testing::StartsWith("This page is missing"));
}

TEST(Help, ComesUpBesideTheTable) {
  // at its left, at its right where there is just room, or over it
  for (const auto& [Table, Help] : {std::pair(QRect(490, 90, 300, 200), QRect(0, 89, 483, 640)),
                                    {QRect(310, 500, 13, 200), QRect(328, 158, 470, 640)},
                                    {QRect(200, 90, 300, 700), QRect(0, 89, 470, 640)}}) {
    QWidget Beside;
    Beside.setGeometry(Table);
    Beside.show();
    const HelpWindow Window(QString(), &Beside);
    EXPECT_TRUE(Window.devicePixelRatioF() != 2 || Window.geometry() == Help) << Window.x();
  }
}

TEST(Help, FindsOnFromPageToPageAndRoundAgain) {
  // what is wanted, Return (r), F3 (n) and Shift+F3 (p), the page that comes up, and the hit's place on it, 0 without
  // one
  const std::tuple<const char*, const char*, const char*, const char*, int> Rows[] = {
      {"PlayingBlunko.htm", "STRAIGHT", "rn", "PlayingBlunko.htm", 2},
      {"PlayingBlunko.htm", "blunko", "nnp", "PlayingBlunko.htm", 1},
      {"Overview.htm", "cousins", "n", "StrategyAndHints.htm", 1},  // on an earlier page
      {"Overview.htm", "Ctrl+F", "nnn", "Overview.htm", 1},         // once only: round to itself
      {"StrategyAndHints.htm", "Tips", "p", "PlayingBlunko.htm", 1},
      {"Overview.htm", "zwieback", "n", "Overview.htm", 0},
  };
  for (const auto& [Start, Text, Keys, Page, Place] : Rows) {
    SCOPED_TRACE(Text);
    Opened Window(Start);
    const QSignalSpy Told(&Window.Help, &HelpWindow::told);
    *Keys == 'n' ? QTest::keyClick(&Window.Help, Qt::Key_F3)
                 : QTest::keyClick(&Window.Help, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(Window.Help.focusWidget(), QLatin1String(Text));
    for (const char Key : std::string_view(Keys)) {
      QTest::keyClick(Window.Help.txtFind, Key == 'r' ? Qt::Key_Return : Qt::Key_F3,
                      Key == 'p' ? Qt::ShiftModifier : Qt::NoModifier);
    }
    EXPECT_EQ(Window.Shown(), QLatin1String(Page));
    const QString Before = Window.Page.toPlainText().left(Window.Page.textCursor().selectionEnd());
    EXPECT_EQ(Before.count(QLatin1String(Text), Qt::CaseInsensitive), Place);
    const QString Last = Told.value(Told.size() - 1).value(0).toString();
    EXPECT_TRUE(Place > 0 ? Last.contains(QLatin1String(Text), Qt::CaseInsensitive)
                          : Last == QLatin1String("Not found"));
    if (Place > 0) continue;
    Window.Help.ShowTopic(QStringLiteral("FairDice.htm"));
    EXPECT_EQ(Window.Help.lblFound->text(), QString()) << "another page";
    QTest::keyClick(&Window.Help, Qt::Key_F3);
    EXPECT_EQ(Window.Help.lblFound->text(), QLatin1String("Not found"));
    QTest::keyClick(Window.Help.txtFind, Qt::Key_Backspace);
    EXPECT_EQ(Window.Help.lblFound->text(), QString()) << "other words";
  }
}

TEST(Help, DialogsBlockEveryWindowButTheHelp) {
  Opened Window("PlayingBlunko.htm");
  QPushButton Other;
  int Clicks = 0;
  QObject::connect(&Other, &QPushButton::clicked, [&] { ++Clicks; });
  Other.show();
  // By the window system, which holds back what a modal dialog blocks.
  const auto ClickBoth = [&](int Page, int Expected) {
    QTest::qWait(1);
    QTest::mouseClick(Other.windowHandle(), Qt::LeftButton, {}, Other.rect().center());
    QTreeWidgetItem* const Row = Window.Contents.topLevelItem(Page);
    Window.Contents.scrollToItem(Row);
    const QPoint Entry = Window.Contents.visualItemRect(Row).center();
    QTest::mouseClick(Window.Help.windowHandle(), Qt::LeftButton, {},
                      Window.Contents.viewport()->mapTo(&Window.Help, Entry));
    EXPECT_EQ(Window.Shown(), HelpWindow::Pages[Page]);
    EXPECT_EQ(Clicks, Expected);
  };
  ClickBoth(1, 1);
  Answers Next;
  QDialog Outer;
  Next.Expect<QDialog>([&](QDialog&) {
    ClickBoth(2, 1);
    Window.Help.close();  // and opened again under the dialog
    Window.Help.ShowTopic(QStringLiteral("Overview.htm"));
    Next.Expect<QDialog>([&](QDialog& Inner) {
      ClickBoth(0, 1);
      Inner.close();
    });
    QDialog(&Outer).exec();
    ClickBoth(1, 1);
    Outer.close();
  });
  Outer.exec();
  ClickBoth(2, 2);
}

}  // namespace blunko::test
