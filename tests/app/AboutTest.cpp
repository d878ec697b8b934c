#include <QElapsedTimer>

#include "app/frmAbout.h"
#include "app/frmCredits.h"
#include "tests/app/Run.h"

namespace blunko::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

TEST(About, DiceSoundLinksOpenAndTheCreditsCome) {
  const QTemporaryDir Place;
  Folders Where = FoldersIn(Place);
  Where.Program = QStringLiteral(TBK_ASSETS);
  Where.Temp = QStringLiteral("/t/");
  const GameSettings Settings(Where);
  Table Game;
  Answers Next;
  const Shell Browser;
  frmAbout Form(Where, Settings, Game.Screen, nullptr);
  Next.Expect<frmAbout>([&](frmAbout&) {
    ExpectUsable(Form);
    EXPECT_FALSE(Form.Picture1->icon().isNull() || Form.Picture2->icon().isNull());
    QTest::keyClick(Form.Picture2, Qt::Key_Space);
    QTest::mouseClick(Form.Picture1, Qt::RightButton);
    EXPECT_EQ(Game.TakeLog(), Lines{"sound /t/11d.wav"});
    Click(Form.Picture1);
    const Lines Joke = Game.TakeLog();
    EXPECT_EQ(Joke.front(), "sound /t/33d.wav");
    EXPECT_EQ(std::set(Joke.begin(), Joke.end()).size(), 5U) << "four boxes, each its own";
    for (QLabel* Link : {Form.lblURL, Form.lblMail}) Click(Link);
    EXPECT_THAT(Browser.Opened, ElementsAre(StartsWith("http"), StartsWith("mailto:")));
    EXPECT_THAT(Form.Label_Version->text().toStdString(), testing::MatchesRegex("v[0-9]+\\.[0-9]+\\.[0-9]+"));
    Next.Press(&frmCredits::cmdOK);
    Click(Form.cmdCredits);
    EXPECT_EQ(Next.Seen.back(), "Tollmoor Blunko Credits");
    Click(Form.cmdOK);
  });
  Form.exec();
  Where.Program = Place.path();
  EXPECT_TRUE(frmAbout(Where, Settings, Game.Screen, nullptr).Picture1->icon().isNull()) << "not there: no error";
}

TEST(Credits, ScrollAtTheirPaceComeAgainAndStopHoweverTheyClose) {
  for (const bool ByKey : {false, true}) {
    frmCredits Form(nullptr);
    int& Top = Form.picScroll->Top;
    const int Bottom = Form.picScroll->height(), Height = Form.picScroll->TextHeight();
    Form.show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return Form.IsScrolling(); }, 5000));
    EXPECT_GE(Top, Bottom - 1);
    const int Before = Top;
    QElapsedTimer Clock;
    Clock.start();
    QTest::qWait(400);
    EXPECT_LE(Before - Top, Clock.elapsed() / 40 + 1);
    EXPECT_GE(Before - Top, 3);  // however busy the machine is

    EXPECT_GT(Height, Bottom);
    Top = -Height;
    ASSERT_TRUE(QTest::qWaitFor([&] { return Top != -Height; }, 5000));
    EXPECT_NEAR(Top, Bottom, 2) << "the last line has gone past the upper edge";
    ByKey ? QTest::keyClick(&Form, Qt::Key_Escape) : static_cast<void>(Form.close());
    EXPECT_FALSE(Form.isVisible() || Form.IsScrolling());
  }
}

TEST(Credits, WithoutATextTheySaySoAndClose) {
  frmCredits Form(nullptr);
  Form.picScroll->Text.clear();
  Answers Next;
  Next.Expect<frmCredits>([](frmCredits&) {});
  Next.Press(&GameBox::cmdOK);
  Form.exec();
  EXPECT_THAT(Next.Seen.back(), testing::EndsWith(": Error scrolling text"));
}

}  // namespace
}  // namespace blunko::test
