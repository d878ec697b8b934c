#include <QLineEdit>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextTable>
#include <QTreeWidget>

#include <array>
#include <set>

#include "app/HelpWindow.h"
#include "tests/app/Run.h"

namespace blunko::test {
namespace {

const QString HelpFolder = QStringLiteral(TBK_ASSETS "/help");

QString Source(const QString& Page) { return QString::fromUtf8(BytesOf(HelpFolder + QLatin1Char('/') + Page)); }

QStringList Captures(const QString& Text, const char* Pattern) {
  QStringList Found;
  for (const auto& Match : QRegularExpression(QLatin1String(Pattern)).globalMatch(Text)) Found += Match.captured(1);
  return Found;
}

TEST(HelpPages, LinksAnchorsAndPicturesResolve) {
  QStringList Targets = HelpWindow::Pages;
  QStringList Links{QStringLiteral("PlayingBlunko.htm#scoring")};  // the topic that the welcome dialog opens
  std::set<QString> Linked;
  for (const QString& Page : HelpWindow::Pages) {
    const QString Text = Source(Page);
    for (const QString& Name : Captures(Text, "<a name=\"([^\"]+)\"")) Targets += Page + QLatin1Char('#') + Name;
    Links += Captures(Text, "<a href=\"([^\"]+)\"");
    for (const QString& File : Captures(Text, "(?:src|<link[^>]*href)=\"([^\"]+)\"")) Linked.insert(File);
  }
  EXPECT_GT(Links.size(), 5);
  EXPECT_EQ(QStringList(Targets).removeDuplicates(), 0);
  for (const QString& Link : Links) EXPECT_TRUE(Targets.contains(Link)) << Link.toStdString();
  EXPECT_EQ(Linked.size(), 8U) << "six dice, the table and a style sheet";
  for (const QString& File : Linked) {
    const QString Path = HelpFolder + QLatin1Char('/') + File;
    EXPECT_TRUE(File.endsWith(QLatin1String(".svg")) ? !RenderSvg(Path, 2).isNull() : QFile::exists(Path))
        << Path.toStdString();
  }
}

/// The cells of the table whose first cell reads so, as they stand on the page.
std::vector<QStringList> TableOf(const char* Page, const char* FirstCell) {
  QTextDocument Document;
  Document.setHtml(Source(QLatin1String(Page)));
  for (QTextFrame* Frame : Document.rootFrame()->childFrames()) {
    const auto* Table = qobject_cast<QTextTable*>(Frame);
    std::vector<QStringList> Rows;
    for (int Row = 0; Table != nullptr && Row < Table->rows(); ++Row) {
      Rows.emplace_back();
      for (int Column = 0; Column < Table->columns(); ++Column) {
        QTextCursor Content = Table->cellAt(Row, Column).firstCursorPosition();
        Content.setPosition(Table->cellAt(Row, Column).lastPosition(), QTextCursor::KeepAnchor);
        Rows.back() += Content.selectedText();
      }
    }
    if (!Rows.empty() && Rows[0][0] == QLatin1String(FirstCell)) return Rows;
  }
  return {};
}

/// Dice of one face, by the rules alone.
int PointsOf(int Face, int Dice) {
  if (Dice >= 3) return (Face == 1 ? 1000 : 100 * Face) << (Dice - 3);
  return Dice * (Face == 1 ? 100 : Face == 5 ? 50 : 0);
}

TEST(HelpPages, PointsAreTheScoring) {
  const auto Rows = TableOf("PlayingBlunko.htm", "Dice alike");
  ASSERT_EQ(Rows.size(), 6U);
  const int Alike[] = {0, 1, 3, 4, 5, 6};
  for (std::size_t Row = 1; Row < Rows.size(); ++Row) {
    for (int Face = 1; Face <= 6; ++Face) EXPECT_EQ(Rows[Row][Face].toInt(), PointsOf(Face, Alike[Row])) << Face;
  }
}

TEST(HelpPages, OddsAreCounted) {
  const auto Rows = TableOf("StrategyAndHints.htm", "Dice rolled");
  ASSERT_EQ(Rows.size(), 7U);
  int Total = 1;
  for (int Dice = 1; Dice <= 6; ++Dice) {
    SCOPED_TRACE(Dice);
    Total *= 6;
    int Busts = 0, AllScore = 0, Sum = 0;
    for (int Number = 0; Number < Total; ++Number) {
      std::array<int, 7> Count{};
      for (int i = 0, Rest = Number; i < Dice; ++i, Rest /= 6) ++Count[Rest % 6 + 1];
      int Points = 0, Dead = 0;
      for (int Face = 1; Face <= 6; ++Face) {
        Points += PointsOf(Face, Count[Face]);
        if (PointsOf(Face, Count[Face]) == 0) Dead += Count[Face];
      }
      const bool Straight = std::count(Count.begin() + 1, Count.end(), 1) == 6;
      if (Straight || std::count(Count.begin(), Count.end(), 2) == 3) Points = Straight ? 1500 : 500, Dead = 0;
      Busts += Points == 0;
      AllScore += Dead == 0;
      Sum += Points;
    }
    const QStringList& Row = Rows[static_cast<std::size_t>(Dice)];
    const auto Fraction = [](const QString& Text) {
      return Text.section(QStringLiteral(" in "), 0, 0).toDouble() / Text.section(QStringLiteral(" in "), 1).toInt();
    };
    EXPECT_EQ(Row[0].toInt(), Dice);
    EXPECT_NEAR(Fraction(Row[1]), 1.0 * Busts / Total, 1e-12);
    EXPECT_NEAR(Row[2].toDouble(), 100.0 * Busts / Total, 0.05);
    EXPECT_NEAR(Fraction(Row[3]), 1.0 * AllScore / Total, 1e-12);
    EXPECT_NEAR(Row[4].toDouble(), 1.0 * Sum / Total, 0.5);
  }
}

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
    EXPECT_EQ(Top->childCount(), Source(HelpWindow::Pages[i]).count(QLatin1String("<h2>")));
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

TEST(Help, GoesBackAndForwardAndOutwardLinksLeaveItAsItIs) {
  Opened Window("PlayingBlunko.htm");
  EXPECT_FALSE(Window.Help.cmdBack->isEnabled());
  Window.Help.ShowTopic(QStringLiteral("PlayingBlunko.htm#scoring"));
  Window.Help.ShowTopic(QStringLiteral("Overview.htm"));
  Click(Window.Help.cmdBack);
  EXPECT_EQ(Window.Shown(), "PlayingBlunko.htm#scoring");
  EXPECT_EQ(Window.Contents.currentItem()->text(0), QStringLiteral("Dice point values"));
  Click(Window.Help.cmdBack);
  EXPECT_FALSE(Window.Help.cmdBack->isEnabled());
  for (int i = 0; i < 2; ++i) Click(Window.Help.cmdForward);
  EXPECT_EQ(Window.Shown(), "Overview.htm");
  EXPECT_FALSE(Window.Help.cmdForward->isEnabled());
  const Shell Browser;
  emit Window.Page.anchorClicked(QUrl(QStringLiteral("https://example.org/a?b=c")));
  EXPECT_EQ(Browser.Opened, Lines{"https://example.org/a?b=c"});
  EXPECT_EQ(Window.Shown(), "Overview.htm");
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
