#include <QDialog>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextTable>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWindow>

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <vector>

#include "app/HelpWindow.h"
#include "table/Pictures.h"
#include "tests/app/Screen.h"

namespace blunko::test {
namespace {

const QString HelpFolder = QStringLiteral(TBK_ASSETS "/help");

QString Source(const QString& Page) {
  QFile File(HelpFolder + QLatin1Char('/') + Page);
  EXPECT_TRUE(File.open(QIODevice::ReadOnly)) << Page.toStdString();
  return QString::fromUtf8(File.readAll());
}

QStringList Captures(const QString& Text, const char* Pattern) {
  QStringList Found;
  auto Matches = QRegularExpression(QLatin1String(Pattern)).globalMatch(Text);
  while (Matches.hasNext()) Found += Matches.next().captured(1);
  return Found;
}

TEST(HelpPages, LinksAnchorsAndPicturesResolve) {
  std::map<QString, QStringList> Anchors;
  for (const QString& Page : HelpWindow::Pages) {
    Anchors[Page] = Captures(Source(Page), "<a name=\"([^\"]+)\"");
    EXPECT_EQ(QStringList(Anchors[Page]).removeDuplicates(), 0) << Page.toStdString();
  }
  QStringList Links{QStringLiteral("PlayingBlunko.htm#scoring")};  // the topic that the welcome dialog opens
  std::set<QString> Linked;
  for (const QString& Page : HelpWindow::Pages) {
    const QString Text = Source(Page);
    Links += Captures(Text, "<a href=\"([^\"]+)\"");
    for (const QString& File : Captures(Text, "(?:src|<link[^>]*href)=\"([^\"]+)\"")) Linked.insert(File);
  }
  EXPECT_GT(Links.size(), 5);
  for (const QString& Link : Links) {
    SCOPED_TRACE(Link.toStdString());
    const QString Page = Link.section(QLatin1Char('#'), 0, 0);
    ASSERT_TRUE(HelpWindow::Pages.contains(Page));
    if (Link.contains(QLatin1Char('#'))) {
      EXPECT_TRUE(Anchors[Page].contains(Link.section(QLatin1Char('#'), 1)));
    }
  }
  EXPECT_EQ(Linked.size(), 7U) << "six dice and a style sheet";
  for (const QString& File : Linked) {
    const QString Path = HelpFolder + QLatin1Char('/') + File;
    EXPECT_TRUE(File.endsWith(QLatin1String(".svg")) ? !RenderSvg(Path, 2).isNull() : QFileInfo::exists(Path))
        << Path.toStdString();
  }
}

/// The cells of the table whose first cell reads so, as they stand on the page.
std::vector<QStringList> TableOf(const QString& Page, const char* FirstCell) {
  QTextDocument Document;
  Document.setHtml(Source(Page));
  for (QTextFrame* Frame : Document.rootFrame()->childFrames()) {
    const auto* Table = qobject_cast<QTextTable*>(Frame);
    const auto Cell = [&](int Row, int Column) {
      QTextCursor Content = Table->cellAt(Row, Column).firstCursorPosition();
      Content.setPosition(Table->cellAt(Row, Column).lastPosition(), QTextCursor::KeepAnchor);
      return Content.selectedText();
    };
    if (Table == nullptr || Cell(0, 0) != QLatin1String(FirstCell)) continue;
    std::vector<QStringList> Rows;
    for (int Row = 0; Row < Table->rows(); ++Row) {
      QStringList Cells;
      for (int Column = 0; Column < Table->columns(); ++Column) Cells += Cell(Row, Column);
      Rows.push_back(Cells);
    }
    return Rows;
  }
  ADD_FAILURE() << "no table " << FirstCell;
  return {};
}

TEST(HelpPages, PointsTableIsTheScoring) {
  const auto Rows = TableOf(QStringLiteral("PlayingBlunko.htm"), "Dice alike");
  ASSERT_EQ(Rows.size(), 6U);
  const int Alike[] = {0, 1, 3, 4, 5, 6};
  for (std::size_t Row = 1; Row < Rows.size(); ++Row) {
    for (int Face = 1; Face <= 6; ++Face) {
      int Points = Face == 1 ? 1000 : 100 * Face;
      for (int Dice = 3; Dice < Alike[Row]; ++Dice) Points *= 2;
      if (Alike[Row] == 1) Points = Face == 1 ? 100 : Face == 5 ? 50 : 0;
      EXPECT_EQ(Rows[Row][Face].toInt(), Points) << Alike[Row] << " dice of face " << Face;
    }
  }
  const auto Whole = TableOf(QStringLiteral("PlayingBlunko.htm"), "Six dice");
  ASSERT_EQ(Whole.size(), 3U);
  EXPECT_EQ(Whole[1].last(), QStringLiteral("1500"));
  EXPECT_EQ(Whole[2].last(), QStringLiteral("500"));
}

/// A roll, counted by hand: what stands in it, by the rules alone.
struct Roll {
  std::vector<std::pair<int, int>> Groups;  ///< dice and points of each group
  int Ones = 0, Fives = 0, Dead = 0;
  int Ways = 0;  ///< in how many ways the dice fall like this

  int Points() const {
    int Sum = 100 * Ones + 50 * Fives;
    for (const auto& [Dice, Worth] : Groups) Sum += Worth;
    return Sum;
  }
};

Roll RollOf(const std::array<int, 7>& Count, int Dice) {
  Roll Made;
  int Pairs = 0, Singles = 0;
  for (int Face = 1; Face <= 6; ++Face) {
    Pairs += Count[Face] == 2;
    Singles += Count[Face] == 1;
  }
  if (Pairs == 3 || Singles == 6) {
    Made.Groups = {{Dice, Pairs == 3 ? 500 : 1500}};
    return Made;
  }
  for (int Face = 1; Face <= 6; ++Face) {
    const int Alike = Count[Face];
    if (Alike >= 3) {
      Made.Groups.emplace_back(Alike, (Face == 1 ? 1000 : 100 * Face) << (Alike - 3));
    } else {
      (Face == 1 ? Made.Ones : Face == 5 ? Made.Fives : Made.Dead) += Alike;
    }
  }
  return Made;
}

/// Every roll of so many dice, those alike counted together.
std::vector<Roll> AllRolls(int Dice) {
  std::map<std::array<int, 7>, int> Ways;
  int Total = 1;
  for (int i = 0; i < Dice; ++i) Total *= 6;
  for (int Number = 0; Number < Total; ++Number) {
    std::array<int, 7> Count{};
    for (int i = 0, Rest = Number; i < Dice; ++i, Rest /= 6) ++Count[Rest % 6 + 1];
    ++Ways[Count];
  }
  std::vector<Roll> Rolls;
  for (const auto& [Count, Number] : Ways) {
    Rolls.push_back(RollOf(Count, Dice));
    Rolls.back().Ways = Number;
  }
  return Rolls;
}

TEST(HelpPages, OddsAreCounted) {
  const auto Rows = TableOf(QStringLiteral("StrategyAndHints.htm"), "Dice rolled");
  ASSERT_EQ(Rows.size(), 7U);
  double Total = 1;
  for (int Dice = 1; Dice <= 6; ++Dice) {
    SCOPED_TRACE(Dice);
    Total *= 6;
    double Busts = 0, AllScore = 0, Points = 0;
    for (const Roll& Each : AllRolls(Dice)) {
      if (Each.Points() == 0) Busts += Each.Ways;
      if (Each.Dead == 0) AllScore += Each.Ways;
      Points += static_cast<double>(Each.Points()) * Each.Ways;
    }
    const QStringList& Row = Rows[static_cast<std::size_t>(Dice)];
    const auto Fraction = [](const QString& Text) {
      const QStringList Parts = Text.split(QStringLiteral(" in "));
      return Parts.value(0).toDouble() / Parts.value(1).toDouble();
    };
    EXPECT_EQ(Row[0].toInt(), Dice);
    EXPECT_NEAR(Fraction(Row[1]), Busts / Total, 1e-12);
    EXPECT_NEAR(Row[2].toDouble(), 100 * Busts / Total, 0.05);
    EXPECT_NEAR(Fraction(Row[3]), AllScore / Total, 1e-12);
    EXPECT_NEAR(Row[4].toDouble(), Points / Total, 0.5);
  }
}

/// The best that a turn can bring on average, by the points that it has and the dice that are rolled next: the dice
/// are rolled or the points are banked, whichever brings more.
TEST(HelpPages, StopScoresAreTheBestThereAre) {
  struct Taking {
    int Points, Left;
  };
  constexpr int Steps = 240, MostInARoll = 8000 / 50;  // of 50 points; beyond them a turn is as good as banked
  std::vector<std::vector<std::pair<int, std::vector<Taking>>>> Rolls(7);
  for (int Dice = 1; Dice <= 6; ++Dice) {
    for (const Roll& Each : AllRolls(Dice)) {
      std::vector<Taking> Takings;
      const int Sets = 1 << Each.Groups.size();
      for (int Set = 0; Set < Sets; ++Set) {
        for (int Ones = 0; Ones <= Each.Ones; ++Ones) {
          for (int Fives = 0; Fives <= Each.Fives; ++Fives) {
            int Points = 100 * Ones + 50 * Fives, Left = Dice - Ones - Fives;
            for (std::size_t g = 0; g < Each.Groups.size(); ++g) {
              if ((Set >> g & 1) == 0) continue;
              Left -= Each.Groups[g].first;
              Points += Each.Groups[g].second;
            }
            // Where every die scores they must all be taken.
            if (Points > 0 && (Left == 0 || Each.Dead > 0)) Takings.push_back({Points, Left});
          }
        }
      }
      Rolls[static_cast<std::size_t>(Dice)].emplace_back(Each.Ways, Takings);
    }
  }
  std::vector<std::array<double, 7>> Worth(Steps + MostInARoll + 1);
  for (std::size_t i = 0; i < Worth.size(); ++i) Worth[i].fill(50.0 * static_cast<double>(i));
  for (int i = Steps; i >= 0; --i) {
    double Total = 1;
    for (int Dice = 1; Dice <= 6; ++Dice) {
      Total *= 6;
      double Sum = 0;
      for (const auto& [Ways, Takings] : Rolls[static_cast<std::size_t>(Dice)]) {
        double Best = 0;
        for (const Taking& Each : Takings) {
          const int After = i + Each.Points / 50;
          const auto& Next = Worth[static_cast<std::size_t>(After)];
          Best = std::max(Best, Each.Left == 0 ? Next[6] : std::max(50.0 * After, Next[Each.Left]));
        }
        Sum += Best * Ways;
      }
      Worth[static_cast<std::size_t>(i)][Dice] = Sum / Total;
    }
  }
  const auto Rows = TableOf(QStringLiteral("StrategyAndHints.htm"), "Dice still up");
  ASSERT_EQ(Rows.size(), 2U);
  for (int Dice = 1; Dice <= 5; ++Dice) {
    int StopAt = 0;
    while (Worth[static_cast<std::size_t>(StopAt / 50)][Dice] > StopAt) StopAt += 50;
    EXPECT_EQ(Rows[1][Dice].toInt(), StopAt) << Dice << " dice up";
  }
  EXPECT_TRUE(Source(QStringLiteral("StrategyAndHints.htm")).contains(QStringLiteral("about 540 points")));
  EXPECT_NEAR(Worth[0][6], 540, 5);
}

struct Opened {
  QWidget Table;
  HelpWindow Help{HelpFolder, &Table};

  explicit Opened(const char* Topic) {
    Help.ShowTopic(QLatin1String(Topic));
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Help));
  }
  QString Shown() const {
    const QUrl Address = Help.Page->source();
    return Address.hasFragment() ? Address.fileName() + QLatin1Char('#') + Address.fragment() : Address.fileName();
  }
};

TEST(Help, ContentsHoldTheHeadingsAndGoToThem) {
  Opened Window("Overview.htm");
  QTreeWidget& Contents = *Window.Help.Contents;
  ASSERT_EQ(Contents.topLevelItemCount(), HelpWindow::Pages.size());
  EXPECT_EQ(Contents.currentItem(), Contents.topLevelItem(2)) << "the page that is shown is marked";
  for (int i = 0; i < Contents.topLevelItemCount(); ++i) {
    QTreeWidgetItem* Top = Contents.topLevelItem(i);
    EXPECT_EQ(Top->childCount(), Source(HelpWindow::Pages[i]).count(QLatin1String("<h2>")));
    for (int k = 0; k < Top->childCount(); ++k) {
      Contents.setCurrentItem(Top->child(k));
      EXPECT_EQ(Window.Help.Page->source().fileName(), HelpWindow::Pages[i]);
      const QString Heading = Window.Help.Page->cursorForPosition({30, 16}).block().text();
      const QScrollBar& Bar = *Window.Help.Page->verticalScrollBar();
      EXPECT_TRUE(Heading == Top->child(k)->text(0) || Bar.value() == Bar.maximum())
          << Top->child(k)->text(0).toStdString() << ", but " << Heading.toStdString();
    }
  }
}

TEST(Help, FindsOnFromPageToPageAndRoundAgain) {
  const struct {
    const char* Why;
    const char* Start;
    const char* Text;
    const char* Keys;  ///< n for F3, p for Shift+F3
    const char* Page;
    int Place;  ///< of the hit among those of its page, from 0; -1 nothing found
  } Rows[] = {
      {"the first on this page", "PlayingBlunko.htm", "straight", "n", "PlayingBlunko.htm", 0},
      {"without regard to case, the next one", "PlayingBlunko.htm", "STRAIGHT", "nn", "PlayingBlunko.htm", 1},
      {"forth and back", "PlayingBlunko.htm", "blunko", "nnp", "PlayingBlunko.htm", 0},
      {"on a later page", "PlayingBlunko.htm", "Ctrl+F", "n", "Overview.htm", 0},
      {"on an earlier page", "Overview.htm", "cousins", "n", "StrategyAndHints.htm", 0},
      {"once only: round to itself", "Overview.htm", "Ctrl+F", "nnn", "Overview.htm", 0},
      {"backward from the top: the last on the page before", "StrategyAndHints.htm", "Tips", "p", "PlayingBlunko.htm",
       0},
      {"nowhere", "Overview.htm", "zwieback", "n", "Overview.htm", -1},
      {"nothing asked for", "Overview.htm", "", "n", "Overview.htm", -1},
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(Row.Why);
    Opened Window(Row.Start);
    QTest::keyClick(&Window.Help, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Window.Help.txtFind->hasFocus());
    QTest::keyClicks(Window.Help.txtFind, QLatin1String(Row.Text));
    for (const char* Key = Row.Keys; *Key != '\0'; ++Key) {
      QTest::keyClick(Window.Help.txtFind, Qt::Key_F3, *Key == 'p' ? Qt::ShiftModifier : Qt::NoModifier);
    }
    EXPECT_EQ(Window.Shown(), QLatin1String(Row.Page));
    const QTextCursor Hit = Window.Help.Page->textCursor();
    EXPECT_EQ(Hit.hasSelection(), Row.Place >= 0);
    EXPECT_EQ(Window.Help.lblFound->text().isEmpty(), Row.Place >= 0 || *Row.Text == '\0');
    if (Row.Place < 0) continue;
    const QString Before = Window.Help.Page->toPlainText().left(Hit.selectionStart());
    EXPECT_EQ(Before.count(QLatin1String(Row.Text), Qt::CaseInsensitive), Row.Place);
    EXPECT_EQ(Hit.selectedText().compare(QLatin1String(Row.Text), Qt::CaseInsensitive), 0);
  }
}

TEST(Help, GoesBackAndForward) {
  Opened Window("PlayingBlunko.htm");
  EXPECT_FALSE(Window.Help.cmdBack->isEnabled());
  Window.Help.ShowTopic(QStringLiteral("PlayingBlunko.htm#scoring"));
  Window.Help.ShowTopic(QStringLiteral("Overview.htm"));
  QTest::mouseClick(Window.Help.cmdBack, Qt::LeftButton);
  EXPECT_EQ(Window.Shown(), QStringLiteral("PlayingBlunko.htm#scoring"));
  EXPECT_EQ(Window.Help.Contents->currentItem()->text(0), QStringLiteral("Dice point values"));
  QTest::mouseClick(Window.Help.cmdBack, Qt::LeftButton);
  EXPECT_FALSE(Window.Help.cmdBack->isEnabled());
  for (int i = 0; i < 2; ++i) QTest::mouseClick(Window.Help.cmdForward, Qt::LeftButton);
  EXPECT_EQ(Window.Shown(), QStringLiteral("Overview.htm"));
  EXPECT_FALSE(Window.Help.cmdForward->isEnabled());
}

TEST(Help, SaysWhatIsMissing) {
  const QTemporaryDir Empty;
  QWidget Table;
  HelpWindow Help(Empty.path(), &Table);
  Help.ShowTopic(QStringLiteral("PlayingBlunko.htm#scoring"));
  const QString Text = Help.Page->toPlainText();
  EXPECT_TRUE(Text.contains(QStringLiteral("missing")));
  EXPECT_TRUE(Text.contains(QStringLiteral("PlayingBlunko.htm")));
  EXPECT_TRUE(Text.contains(Empty.path()));
  EXPECT_EQ(Help.Contents->topLevelItemCount(), HelpWindow::Pages.size());
  EXPECT_FALSE(Help.Contents->topLevelItem(0)->text(0).isEmpty());
}

TEST(Help, OutwardLinksLeaveTheWindowAsItIs) {
  Opened Window("Overview.htm");
  Shell Browser;
  emit Window.Help.Page->anchorClicked(QUrl(QStringLiteral("https://example.org/a?b=c")));
  emit Window.Help.Page->anchorClicked(QUrl::fromLocalFile(HelpFolder + QStringLiteral("/StrategyAndHints.htm")));
  EXPECT_EQ(Browser.Opened, QStringList{QStringLiteral("https://example.org/a?b=c")});
  EXPECT_EQ(Window.Shown(), QStringLiteral("StrategyAndHints.htm"));
}

TEST(Help, DialogsBlockEveryWindowButTheHelp) {
  Opened Window("PlayingBlunko.htm");
  QPushButton Other(QStringLiteral("other"));
  int Clicks = 0;
  QObject::connect(&Other, &QPushButton::clicked, [&] { ++Clicks; });
  Other.show();
  // By the window system, which holds back what a modal dialog blocks.
  const auto ClickBoth = [&](int Page) {
    QTest::qWait(1);
    QTest::mouseClick(Other.windowHandle(), Qt::LeftButton, {}, Other.rect().center());
    QTreeWidget& Contents = *Window.Help.Contents;
    const QPoint Place = Contents.visualItemRect(Contents.topLevelItem(Page)).center();
    QTest::mouseClick(Window.Help.windowHandle(), Qt::LeftButton, {}, Contents.viewport()->mapTo(&Window.Help, Place));
    EXPECT_EQ(Window.Shown(), HelpWindow::Pages[Page]);
  };
  ClickBoth(1);
  EXPECT_EQ(Clicks, 1);

  QDialog Outer;
  WhileModal Answers({[&](QWidget&) {
                        ClickBoth(2);
                        // Closed and opened again under the dialog.
                        Window.Help.close();
                        Window.Help.ShowTopic(QStringLiteral("Overview.htm"));
                        QMessageBox(QMessageBox::NoIcon, {}, QStringLiteral("inner"), {}, &Outer).exec();
                        ClickBoth(1);
                        Outer.close();
                      },
                      [&](QWidget& Inner) {
                        ClickBoth(0);
                        Inner.close();
                      }});
  Outer.exec();
  EXPECT_EQ(Clicks, 1) << "blocked meanwhile";
  EXPECT_TRUE(Window.Help.isVisible());
  ClickBoth(2);
  EXPECT_EQ(Clicks, 2);
}

TEST(Help, ABoxOverTheHelpItselfBlocksIt) {
  Opened Window("PlayingBlunko.htm");
  WhileModal Answers({[&](QWidget& Box) {
    QTreeWidget& Contents = *Window.Help.Contents;
    const QPoint Place = Contents.visualItemRect(Contents.topLevelItem(2)).center();
    QTest::mouseClick(Window.Help.windowHandle(), Qt::LeftButton, {}, Contents.viewport()->mapTo(&Window.Help, Place));
    EXPECT_EQ(Window.Shown(), QStringLiteral("PlayingBlunko.htm"));
    Box.close();
  }});
  QMessageBox(QMessageBox::NoIcon, {}, QStringLiteral("over it"), {}, &Window.Help).exec();
}

}  // namespace
}  // namespace blunko::test
