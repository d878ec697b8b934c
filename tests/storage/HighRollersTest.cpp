#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <sys/wait.h>

#include "storage/DayNumber.h"
#include "storage/HighRollers.h"
#include "tests/storage/Place.h"

namespace blunko::test {
namespace {

const QString Name = QStringLiteral("highscores.dat");
constexpr WhichList Turns = &RollerLists::lstHSTS;

/// Text with a bar for each separator.
QByteArray Plain(const char* Text) { return QByteArray(Text).replace('|', '\xA4'); }

/// The program's copies that work in one folder.
class HighRollersTest : public testing::Test, private ListStore {
 protected:
  HighRollers Copy() {
    HighRollers Made(place.Path(Name), *this);
    Made.LoadHighRollers();
    return Made;
  }
  bool UtilStoreLists(const QByteArray& Text) const override { return works && ReplaceFile(place.Path(Name), Text); }
  QByteArray Text() const { return UnscrambleText(place.Get(Name)); }
  RollerLists Held() const { return RollerLists::OfText(Text()).value_or(RollerLists{}); }
  /// The first names of the list in the file.
  std::string Best(int Count) const {
    QStringList Names;
    for (int i = 0; i < Count; ++i) Names << Held().lstHSTS[static_cast<std::size_t>(i)].Name;
    return Names.join(' ').toStdString();
  }

  const Place place;
  const QByteArray defaultText = RollerLists::Default().Text();
  bool works = true;
};

TEST(Scrambling, WorkedExampleAndEveryByte) {
  const unsigned char Example[] = {212, 225, 237, 37, 177, 181, 176, 176, 141, 138};
  EXPECT_EQ(ScrambleText(Plain("Tam|1500\r\n")), QByteArray(reinterpret_cast<const char*>(Example), sizeof Example));
  QByteArray All;
  for (int Byte = 1; Byte < 255; ++Byte) All += static_cast<char>(Byte);
  EXPECT_EQ(ScrambleText(All).indexOf('\0'), -1);
  EXPECT_EQ(UnscrambleText(ScrambleText(All)), All);
}

TEST(DayNumber, CountsFromItsFirstDay) { EXPECT_EQ(DayNumber(QDate(2006, 1, 1)), "38718"); }

TEST_F(HighRollersTest, FirstStartWritesTheDefaultLists) {
  const HighRollers First = Copy();
  EXPECT_EQ(First.Lists(), Held());
  EXPECT_EQ(Text(), Plain("Tam|1500\r\nIrene|1450\r\nMarlo|1400\r\nGeorgiana|1350\r\nBea|1300\r\nRosa|1250\r\n"
                          "Hugo|1200\r\nPhilipa|1150\r\nOtis|1100\r\nVivianne|1050\r\nIrene|1500\r\nTam|1450\r\n"
                          "Marlo|1400\r\nVivianne|1350\r\nOtis|1300\r\nPhilipa|1250\r\nHugo|1200\r\nRosa|1150\r\n"
                          "Bea|1100\r\nGeorgiana|1050\r\n"));
}

TEST_F(HighRollersTest, AScoreTakesThePlaceOfTheFirstThatItBeats) {
  const std::pair<std::int16_t, int> Rows[] = {{-1, 10}, {1050, 10}, {1051, 9}, {1101, 8}, {1500, 1}, {32767, 0}};
  for (const auto& [Score, Place] : Rows) {
    HighRollers Rollers = Copy();
    Rollers.Add(Turns, {QStringLiteral("Zoë"), Score});
    const RollerList Before = RollerLists::Default().lstHSTS;
    std::vector<HighRoller> Expected(Before.begin(), Before.end());
    Expected.insert(Expected.begin() + Place, {QStringLiteral("Zoë"), Score});
    Expected.resize(10);
    EXPECT_THAT(Copy().Lists().lstHSTS, testing::ElementsAreArray(Expected)) << Score;
    EXPECT_EQ(Held().lstBMoV, RollerLists::Default().lstBMoV);
    Rollers.ResetHighRollers();
  }
}

TEST_F(HighRollersTest, DamagedFilesAreSetAsideAndCountAsMissing) {
  const auto With = [this](const char* Line) {
    return ScrambleText(QByteArray(defaultText).replace(Plain("Bea|1300"), Plain(Line)));
  };
  const std::pair<const char*, QByteArray> Rows[] = {
      {"empty", ""},
      {"19 lines", ScrambleText(defaultText.left(defaultText.lastIndexOf("Georgiana")))},
      {"21 lines", ScrambleText(defaultText + Plain("Tam|1\r\n"))},
      {"cut in the last score", ScrambleText(defaultText.chopped(3))},
      {"no separator", With("Bea1300")},
      {"two separators", With("B|ea|1300")},
      {"no number", With("Bea|13x0")},
      {"signed", With("Bea|-130")},
      {"far out of range", With("Bea|4294967297")},
      {"other line ends", ScrambleText(QByteArray(defaultText).replace("\r\n", "\n"))},
      {"not scrambled", defaultText},
      {"huge", ScrambleText(QByteArray(3 << 20, 'x') + defaultText)}};
  QStringList Expected{Name};
  for (const auto& [What, File] : Rows) {
    place.Put(Name, File);
    testing::internal::CaptureStderr();
    EXPECT_EQ(Copy().Lists(), RollerLists::Default()) << What;
    const std::string Report = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::count(Report.begin(), Report.end(), '\n'), 1) << What << Report;
    EXPECT_EQ(Text(), defaultText) << What;
    Expected << Name + QStringLiteral(".damaged%1").arg(Expected.size());
    EXPECT_EQ(place.Get(Expected.back()), File) << What << ": nothing is destroyed";
    EXPECT_THAT(place.Names(), testing::UnorderedElementsAreArray(Expected));
  }
}

TEST_F(HighRollersTest, OddButWholeFilesKeepEveryByte) {
  QByteArray Odd = defaultText;
  Odd.replace(Plain("Marlo|1400"), Plain("\x80\x07 \x01<b>\xFE|0")).replace(Plain("Hugo|1200"), Plain("|32767"));
  place.Put(Name, ScrambleText(Odd));
  Copy().Add(Turns, {QStringLiteral("New"), 1600});
  EXPECT_EQ(Text(), Plain("New|1600\r\n") + Odd.replace(Plain("Vivianne|1050\r\n"), ""));
}

TEST_F(HighRollersTest, WhatCannotBeReadOrMovedStaysAsItIs) {
  for (const bool Unreadable : {true, false}) {
    place.Put(Name, Unreadable ? ScrambleText(defaultText) : QByteArray("damaged"));
    const QByteArray File = place.Get(Name);
    if (Unreadable) chmod(QFile::encodeName(place.Path(Name)).constData(), 0);
    {
      const Unprivileged Nobody(place);
      place.Mkdir("", Unreadable ? 0755 : 0555);
      HighRollers Rollers = Copy();
      Rollers.Add(Turns, {QStringLiteral("One"), 1800});
      Rollers.ResetHighRollers();
      Rollers.LoadHighRollers();
      EXPECT_EQ(Rollers.Lists().lstHSTS[0].Name, "One") << "for this run";
      EXPECT_EQ(place.Names(), QStringList(Name));
      place.Mkdir("", 0755);
    }
    chmod(QFile::encodeName(place.Path(Name)).constData(), 0644);
    EXPECT_EQ(place.Get(Name), File);
  }
}

TEST_F(HighRollersTest, CopiesKeepEachOthersEntries) {
  HighRollers Here = Copy(), There = Copy();
  Here.Add(Turns, {QStringLiteral("Here"), 1600});
  There.Add(Turns, {QStringLiteral("There"), 1700});
  Here.Add(Turns, {QStringLiteral("Equal"), 1700});
  EXPECT_EQ(Held(), Here.Lists());
  EXPECT_EQ(Best(4), "There Equal Here Tam") << "the earlier of two equal ones stands above";
  for (const char* Damage : {"rubbish", ""}) {
    *Damage != '\0' ? place.Put(Name, Damage) : void(QFile::remove(place.Path(Name)));
    Here.Add(Turns, {QStringLiteral("Next"), 1650});
    EXPECT_EQ(Best(3), "There Equal Next") << "a damage during the run loses no entry";
  }
  // Ten better ones from the other copy: what is offered now stays out, and nothing is written over them.
  for (int i = 0; i < 10; ++i) There.Add(Turns, {QStringLiteral("Best"), 9000});
  Here.Add(Turns, {QStringLiteral("Late"), 8000});
  EXPECT_EQ(Held(), There.Lists());
  There.ResetHighRollers();  // holds for the other copy, too
  Here.Add(Turns, {QStringLiteral("After"), 1600});
  EXPECT_EQ(Best(2), "After Tam");
}

TEST_F(HighRollersTest, WhatCannotBeSavedStaysForTheRunAndGoesWithTheNextSave) {
  HighRollers Rollers = Copy();
  Rollers.Add(Turns, {QStringLiteral("Zero"), 1600});
  const QByteArray Before = Text();
  works = false;
  Rollers.Add(Turns, {QStringLiteral("One"), 1800});
  Rollers.Add(&RollerLists::lstBMoV, {QStringLiteral("Two"), 1700});
  Rollers.ResetHighRollers();
  Rollers.LoadHighRollers();
  EXPECT_EQ(Rollers.Lists().lstHSTS[0].Name, "One");
  EXPECT_EQ(Text(), Before);
  works = true;
  Copy().Add(Turns, {QStringLiteral("Other"), 1900});
  Rollers.Add(Turns, {QStringLiteral("Three"), 1850});
  EXPECT_EQ(Held(), Rollers.Lists());
  EXPECT_EQ(Best(5), "Other Three One Zero Tam") << "each once";
  EXPECT_EQ(Held().lstBMoV[0].Name, "Two");
  Rollers.ResetHighRollers();
  Rollers.LoadHighRollers();
  EXPECT_EQ(Rollers.Lists(), RollerLists::Default());
}

/// A copy that saves without a pause is killed at any moment: the file holds the lists before or after the save that
/// was under way, whole, and every save that had returned; the next one finds neither a lock nor litter.
TEST_F(HighRollersTest, KilledAtAnyMomentTheFileIsWhole) {
  constexpr int Saves = 100, MostSavesAwaited = 5;
  constexpr unsigned ChildLimit = 60;  // s
  constexpr useconds_t LongestPause = 8000;
  Copy();
  std::mt19937 Random(7);
  std::int16_t Score = 2000;
  const auto Limit = std::chrono::steady_clock::now() + std::chrono::seconds(240);
  while (Score < 2000 + Saves) {
    ASSERT_LT(std::chrono::steady_clock::now(), Limit) << Score;
    int Pipe[2];
    ASSERT_EQ(pipe(Pipe), 0);
    const pid_t Child = fork();
    ASSERT_GE(Child, 0);
    if (Child == 0) {
      alarm(ChildLimit);
      HighRollers Rollers = Copy();
      for (std::int16_t Next = Score; write(Pipe[1], "", 1) == 1; ++Next) Rollers.Add(Turns, {QString(), Next});
      _exit(1);
    }
    close(Pipe[1]);
    char Byte;
    int Returned = -1;  // the first byte only says that the child lives
    for (const int Awaited = static_cast<int>(Random() % (MostSavesAwaited + 1)); Returned < Awaited; ++Returned) {
      ASSERT_EQ(read(Pipe[0], &Byte, 1), 1);
    }
    usleep(Random() % LongestPause);
    kill(Child, SIGKILL);
    waitpid(Child, nullptr, 0);
    while (read(Pipe[0], &Byte, 1) == 1) ++Returned;
    close(Pipe[0]);

    const auto Found = RollerLists::OfText(Text());
    ASSERT_TRUE(Found) << Text().constData();
    const int Best = Found->lstHSTS[0].Score;
    const int Saved = Best < Score ? 0 : Best - Score + 1;
    ASSERT_TRUE(Saved == Returned || Saved == Returned + 1) << Saved << " saved, " << Returned << " returned";
    for (int i = 0; i < 10 && Best - i >= 2000; ++i)
      ASSERT_EQ(Found->lstHSTS[static_cast<std::size_t>(i)].Score, Best - i);
    ASSERT_EQ(Found->lstBMoV, RollerLists::Default().lstBMoV);
    Score = static_cast<std::int16_t>(Score + Saved);
  }
  Copy().Add(Turns, {QString(), Score});
  EXPECT_EQ(place.Names(), QStringList(Name));
}

}  // namespace
}  // namespace blunko::test
