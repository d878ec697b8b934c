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
QByteArray Plain(QByteArray Text) { return Text.replace('|', '\xA4'); }

/// The program's copies that work in one folder.
struct HighRollersTest : testing::Test, ListStore {
  HighRollers Copy() {
    HighRollers Made(place.Path(Name), *this);
    Made.LoadHighRollers();
    return Made;
  }
  bool UtilStoreLists(const QByteArray& Text) const override { return ReplaceFile(place.Path(Name), Text); }
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
};

TEST(DayNumber, CountsFromItsFirstDay) { EXPECT_EQ(DayNumber(QDate(2006, 1, 1)), "38718"); }

TEST_F(HighRollersTest, AScoreTakesThePlaceOfTheFirstThatItBeatsAndEveryByteStays) {
  const QByteArray Odd = QByteArray(defaultText)
                             .replace("Tam\xA4", "\x80\x07 \x01<b>\xFE\xA4")
                             .replace(Plain("Hugo|"), Plain("|"))
                             .replace("1050", "0");
  const std::pair<std::int16_t, int> Rows[] = {{-1, 10}, {0, 10}, {1, 9}, {1101, 8}, {1500, 1}, {32767, 0}};
  for (const auto& [Score, Place] : Rows) {
    place.Put(Name, ScrambleText(Odd));
    Copy().Add(Turns, {QStringLiteral("Zoë"), Score});
    QByteArrayList Lines = Odd.split('\n');
    Lines.insert(Place, "Zo\xEB\xA4" + QByteArray::number(Score) + '\r');
    Lines.removeAt(10);
    EXPECT_EQ(Text(), Lines.join('\n'));
  }
}

TEST_F(HighRollersTest, DamagedFilesAreSetAsideAndCountAsMissing) {
  const QByteArray Last = "Georgiana|1050\r\n";
  const QByteArrayList Rows = {"",
                               "Tam|1\r\n" + Last,
                               "Georgiana|10",
                               "Bea1300\r\n",
                               "B|ea|1300\r\n",
                               "Bea|-130\r\n",
                               "Bea|4294967297\r\n",
                               QByteArray(3 << 20, 'x') + Last};
  QStringList Expected{Name};
  for (const QByteArray& Bad : Rows) {
    const QByteArray File = ScrambleText(QByteArray(defaultText).replace(Plain(Last), Plain(Bad)));
    place.Put(Name, File);
    testing::internal::CaptureStderr();
    Copy();
    EXPECT_THAT(testing::internal::GetCapturedStderr(), testing::EndsWith("\n"));
    EXPECT_EQ(Text(), defaultText) << Bad.left(40).constData();
    Expected << Name + QStringLiteral(".damaged%1").arg(Expected.size());
    EXPECT_EQ(place.Get(Expected.back()), File) << "nothing is destroyed";
    EXPECT_THAT(place.Names(), testing::UnorderedElementsAreArray(Expected));
  }
}

TEST_F(HighRollersTest, CopiesScrambleTheFileAndKeepEachOthersEntries) {
  HighRollers Here = Copy(), There = Copy();
  EXPECT_EQ(place.Get(Name).first(10), "\xD4\xE1\xED\x25\xB1\xB5\xB0\xB0\x8D\x8A");
  Here.Add(Turns, {QStringLiteral("Here"), 1600});
  There.Add(Turns, {QStringLiteral("There"), 1700});
  Here.Add(Turns, {QStringLiteral("Equal"), 1700});
  EXPECT_EQ(Best(4), "There Equal Here Tam") << "the earlier of two equal ones stands above";
  for (const bool Damaged : {true, false}) {
    Damaged ? place.Put(Name, "rubbish") : void(QFile::remove(place.Path(Name)));
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
  const std::tuple<mode_t, mode_t, QByteArray> Rows[] = {{0555, 0644, ScrambleText(defaultText)},
                                                         {0755, 0, ScrambleText(defaultText)},
                                                         {0555, 0644, "damaged, and can't be moved"}};
  for (const auto& [FolderMode, FileMode, File] : Rows) {
    SCOPED_TRACE(FileMode);
    place.Put(Name, File);
    place.Chmod(Name, FileMode);
    place.Chmod("", FolderMode);
    std::optional<Unprivileged> Nobody(place);
    HighRollers Rollers = Copy();
    Rollers.Add(Turns, {QStringLiteral("One"), 1800});
    Rollers.Add(&RollerLists::lstBMoV, {QStringLiteral("Two"), 1700});
    Rollers.ResetHighRollers();
    Rollers.LoadHighRollers();
    EXPECT_EQ(Rollers.Lists().lstHSTS[0].Name, "One");
    Nobody.reset();
    place.Chmod("", 0755);
    place.Chmod(Name, 0644);
    EXPECT_EQ(place.Get(Name), File);
    EXPECT_EQ(place.Names(), QStringList(Name));
    Copy().Add(Turns, {QStringLiteral("Other"), 1900});
    Rollers.Add(Turns, {QStringLiteral("Three"), 1850});
    EXPECT_EQ(Held(), Rollers.Lists());
    EXPECT_EQ(Best(4), "Other Three One Tam") << "each once";
    EXPECT_EQ(Held().lstBMoV[0].Name, "Two");
    Rollers.ResetHighRollers();
    EXPECT_EQ(Text(), defaultText);
  }
}

/// A copy that saves without a pause is killed at any moment: the file holds the lists before or after the save that
/// was under way, whole, and every save that had returned; the next one finds neither a lock nor litter.
TEST_F(HighRollersTest, KilledAtAnyMomentTheFileIsWhole) {
  Copy();
  std::mt19937 Random(7);
  std::int16_t Score = 2000;
  for (int Kills = 0; Kills < 30; ++Kills) {
    int Pipe[2];
    ASSERT_EQ(pipe(Pipe), 0);
    const pid_t Child = fork();
    ASSERT_GE(Child, 0);
    if (Child == 0) {
      alarm(60);
      HighRollers Rollers = Copy();
      for (std::int16_t Next = Score; write(Pipe[1], "", 1) == 1; ++Next) Rollers.Add(Turns, {QString(), Next});
      _exit(1);
    }
    close(Pipe[1]);
    char Byte;
    ASSERT_EQ(read(Pipe[0], &Byte, 1), 1);  // the first byte only says that the child lives
    usleep(Random() % 30000);
    kill(Child, SIGKILL);
    waitpid(Child, nullptr, 0);
    int Returned = 0;
    while (read(Pipe[0], &Byte, 1) == 1) ++Returned;
    close(Pipe[0]);

    ASSERT_TRUE(RollerLists::OfText(Text()));
    const int Best = Held().lstHSTS[0].Score, Saved = Best < Score ? 0 : Best - Score + 1;
    ASSERT_TRUE(Saved == Returned || Saved == Returned + 1) << Saved << " saved, " << Returned << " returned";
    Score = static_cast<std::int16_t>(Score + Saved);
  }
  EXPECT_GT(Score, 2000);
  Copy().Add(Turns, {QString(), Score});
  EXPECT_EQ(place.Names(), QStringList(Name));
}

}  // namespace
}  // namespace blunko::test
