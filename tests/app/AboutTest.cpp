#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/frmAbout.h"
#include "app/frmCredits.h"
#include "tests/app/Screen.h"

namespace blunko::test {
namespace {

struct AboutBox {
  QTemporaryDir Folder;
  Folders Where = [this] {
    Folders Found;
    Found.Program = QStringLiteral(TBK_ASSETS);
    Found.State = Folder.path();
    Found.BaseName = QStringLiteral("Game");
    Found.Temp = QStringLiteral("/t/");
    return Found;
  }();
  GameSettings Settings{Where};
  LoggingDesktop Desktop;
};

TEST(About, DiceSoundAndTellTheJoke) {
  AboutBox Box;
  frmAbout Form(Box.Where, Box.Settings, Box.Desktop, nullptr);
  Form.show();
  EXPECT_FALSE(Form.Picture1->IsEmpty());
  EXPECT_FALSE(Form.Picture2->IsEmpty());
  QTest::mouseClick(Form.Picture2, Qt::LeftButton);
  EXPECT_EQ(Box.Desktop.Log, QStringList{QStringLiteral("/t/11d.wav")});
  Box.Desktop.Log.clear();
  QTest::mouseClick(Form.Picture1, Qt::RightButton);
  EXPECT_TRUE(Box.Desktop.Log.isEmpty());
  QTest::mouseClick(Form.Picture1, Qt::LeftButton);
  ASSERT_EQ(Box.Desktop.Log.size(), 5);
  EXPECT_EQ(Box.Desktop.Log[0], QStringLiteral("/t/33d.wav"));
  Box.Desktop.Log.removeDuplicates();
  EXPECT_EQ(Box.Desktop.Log.size(), 5) << "four boxes, each its own";
}

TEST(About, LinksLeaveTheProgramAndTheVersionIsShown) {
  AboutBox Box;
  Box.Where.Program = Box.Folder.path();  // no picture there: nothing to see, and no error
  frmAbout Form(Box.Where, Box.Settings, Box.Desktop, nullptr);
  Shell Browser;
  Form.show();
  EXPECT_TRUE(Form.Picture1->IsEmpty());
  for (QLabel* Link : {Form.lblURL, Form.lblMail}) QTest::mouseClick(Link, Qt::LeftButton, {}, Link->rect().center());
  EXPECT_THAT(Browser.Opened, testing::SizeIs(2));
  EXPECT_TRUE(Browser.Opened.value(0).startsWith(QLatin1String("http")));
  EXPECT_TRUE(Browser.Opened.value(1).startsWith(QLatin1String("mailto:")));
  EXPECT_TRUE(QRegularExpression(QStringLiteral("^v\\d+\\.\\d+\\.\\d+$")).match(Form.Label_Version->text()).hasMatch());
  QTest::mouseClick(Form.cmdOK, Qt::LeftButton);
  EXPECT_FALSE(Form.isVisible());
}

TEST(Credits, BlocksHoldTheirLines) {
  const struct {
    const char* First;
    int Lines;
  } Rows[] = {{"Game Design:", 2}, {"Programming:", 4}, {"Dice Design:", 2},
              {"Copy Edit:", 3},   {"Q&A:", 15},        {"Visit Tollmoor Games", 3}};
  const QStringList Blocks = frmCredits::CreditsText().split(QStringLiteral("\n\n"));
  ASSERT_EQ(Blocks.size(), static_cast<qsizetype>(std::size(Rows)));
  QStringList All;
  for (qsizetype i = 0; i < Blocks.size(); ++i) {
    const QStringList Lines = Blocks[i].split(QLatin1Char('\n'));
    EXPECT_EQ(Lines.first(), QLatin1String(Rows[i].First));
    EXPECT_EQ(Lines.size(), Rows[i].Lines) << Rows[i].First;
    EXPECT_FALSE(Lines.contains(QString())) << Rows[i].First;
    All += Lines;
  }
  const qsizetype Count = All.size();
  EXPECT_EQ(All.removeDuplicates(), 0) << "of " << Count;
  EXPECT_EQ(Blocks.last().section(QLatin1Char('\n'), 1, 1), QStringLiteral("on the web at"));
}

/// Lets the credits come up from the lower edge.
void WaitForScrolling(frmCredits& Form) {
  Form.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return Form.IsScrolling(); }, 5000));
}

TEST(Credits, ScrollAtTheirPaceAndComeUpAgainFromBelow) {
  frmCredits Form(nullptr);
  WaitForScrolling(Form);
  const int Bottom = Form.picScroll->height();
  EXPECT_GE(Form.picScroll->Top, Bottom - 1);
  const int Before = Form.picScroll->Top;
  QElapsedTimer Clock;
  Clock.start();
  QTest::qWait(500);
  const int Steps = Before - Form.picScroll->Top;
  EXPECT_LE(Steps, Clock.elapsed() / 40 + 1);
  EXPECT_GE(Steps, 3);  // however busy the machine is

  const int Height = Form.picScroll->TextHeight();
  EXPECT_GT(Height, Bottom) << "taller than the box";
  Form.picScroll->Top = -Height;
  ASSERT_TRUE(QTest::qWaitFor([&] { return Form.picScroll->Top != -Height; }, 5000));
  EXPECT_NEAR(Form.picScroll->Top, Bottom, 2) << "the last line has gone past the upper edge";
}

TEST(Credits, StopForGoodHoweverTheyClose) {
  for (const int Way : {0, 1, 2}) {
    SCOPED_TRACE(Way);
    frmCredits Form(nullptr);
    WaitForScrolling(Form);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Form.picScroll->Top < Form.picScroll->height() - 1; }, 5000));
    if (Way == 0) QTest::mouseClick(Form.cmdOK, Qt::LeftButton);
    if (Way == 1) QTest::keyClick(&Form, Qt::Key_Escape);
    if (Way == 2) Form.close();
    EXPECT_FALSE(Form.isVisible());
    const int Top = Form.picScroll->Top;
    QTest::qWait(120);
    EXPECT_EQ(Form.picScroll->Top, Top);
  }
}

TEST(Credits, WithoutATextTheySaySoAndClose) {
  frmCredits Form(nullptr);
  Form.picScroll->Text.clear();
  QString Said;
  WhileModal Answers({[&](QWidget& Window) {
    Said = dynamic_cast<QMessageBox&>(Window).text();
    Window.close();
  }});
  Form.show();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Form.isVisible(); }, 5000));
  EXPECT_EQ(Said, QStringLiteral("Error scrolling text"));
}

TEST(Credits, OpenFromTheAboutBox) {
  AboutBox Box;
  frmAbout Form(Box.Where, Box.Settings, Box.Desktop, nullptr);
  Form.show();
  WhileModal Answers({[](QWidget& Window) {
    EXPECT_EQ(Window.windowTitle(), QStringLiteral("Tollmoor Blunko Credits"));
    Window.close();
  }});
  QTest::mouseClick(Form.cmdCredits, Qt::LeftButton);
  EXPECT_TRUE(Form.isVisible());
}

}  // namespace
}  // namespace blunko::test
