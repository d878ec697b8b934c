#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <chrono>
#include <csignal>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "storage/DayNumber.h"
#include "storage/FileAccess.h"
#include "storage/HighRollers.h"

namespace blunko::test {
namespace {

constexpr unsigned ChildLimit = 60;  // s

/// A folder of its own for a test, and the program's copies that work in it.
struct Place {
  QTemporaryDir Folder;
  QString File = Folder.filePath(QStringLiteral("highscores.dat"));

  HighRollers Copy() const {
    return HighRollers(File, [File = File](const QByteArray& Text) { return ReplaceFile(File, Text); });
  }
  HighRollers LoadedCopy() const {
    HighRollers Made = Copy();
    Made.LoadHighRollers();
    return Made;
  }
  void Write(const QByteArray& Bytes) const {
    QFile Out(File);
    ASSERT_TRUE(Out.open(QIODevice::WriteOnly));
    Out.write(Bytes);
  }
  static QByteArray Read(const QString& Path) {
    QFile In(Path);
    return In.open(QIODevice::ReadOnly) ? In.readAll() : QByteArray("unreadable");
  }
  QByteArray Plain() const { return UnscrambleText(Read(File)); }
  RollerLists Held() const { return RollerLists::OfText(Plain()).value_or(RollerLists{}); }
  QStringList Entries() const { return QDir(Folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }
};

/// Runs `Work` in a process of its own; true if it returned true in time.
bool InChild(const std::function<bool()>& Work) {
  const pid_t Child = fork();
  if (Child == 0) {
    alarm(ChildLimit);
    _exit(Work() ? 0 : 1);
  }
  int Status = -1;
  return waitpid(Child, &Status, 0) == Child && Status == 0;
}

QByteArray DefaultText() { return RollerLists::Default().Text(); }

TEST(Scrambling, WorkedExampleAndEveryByte) {
  const unsigned char Example[] = {212, 225, 237, 37, 177, 181, 176, 176, 141, 138};
  const QByteArray File(reinterpret_cast<const char*>(Example), sizeof Example);
  EXPECT_EQ(ScrambleText("Tam\xA4"
                         "1500\r\n"),
            File);
  EXPECT_EQ(UnscrambleText(File),
            "Tam\xA4"
            "1500\r\n");

  QByteArray All;
  for (int Byte = 1; Byte < 255; ++Byte) All += static_cast<char>(Byte);
  EXPECT_EQ(ScrambleText(All).indexOf('\0'), -1);
  EXPECT_EQ(UnscrambleText(ScrambleText(All)), All);
  EXPECT_EQ(UnscrambleText(ScrambleText("\xFF")), QByteArray(1, '\0')) << "the one byte that doesn't survive";
}

TEST(DayNumber, CountsFromItsFirstDay) {
  EXPECT_EQ(DayNumber(QDate(2006, 1, 1)), "38718");
  EXPECT_EQ(DayNumber(QDate(1900, 1, 1)), "2");
}

TEST(HighRollers, FirstStartWritesTheDefaultLists) {
  const Place place;
  const HighRollers Rollers = place.LoadedCopy();
  EXPECT_TRUE(
      place.Plain().startsWith("Tam\xA4"
                               "1500\r\nIrene\xA4"
                               "1450\r\n"));
  EXPECT_TRUE(
      place.Plain().contains("Vivianne\xA4"
                             "1050\r\nIrene\xA4"
                             "1500\r\nTam\xA4"
                             "1450\r\n"));
  EXPECT_TRUE(
      place.Plain().endsWith("Bea\xA4"
                             "1100\r\nGeorgiana\xA4"
                             "1050\r\n"));
  EXPECT_EQ(place.Held(), Rollers.Lists());
  for (const RollerList& List : {Rollers.Lists().lstHSTS, Rollers.Lists().lstBMoV}) {
    for (int i = 0; i < 10; ++i) EXPECT_EQ(List[i].Score, 1500 - 50 * i);
  }
}

TEST(HighRollers, AScoreTakesThePlaceOfTheFirstThatItBeats) {
  const struct {
    std::int16_t Score;
    std::optional<int> Place;
  } Rows[] = {{-1, {}}, {1050, {}}, {1051, 9}, {1100, 9}, {1101, 8}, {1500, 1}, {1501, 0}, {32767, 0}};
  for (const auto& Row : Rows) {
    SCOPED_TRACE(Row.Score);
    EXPECT_EQ(PlaceFor(RollerLists::Default().lstHSTS, Row.Score), Row.Place);
    const Place place;
    HighRollers Rollers = place.LoadedCopy();
    Rollers.Add(&RollerLists::lstHSTS, {QStringLiteral("Zoë"), Row.Score});
    const RollerList Before = RollerLists::Default().lstHSTS;
    std::vector<HighRoller> Expected(Before.begin(), Before.end());
    if (Row.Place) Expected.insert(Expected.begin() + *Row.Place, {QStringLiteral("Zoë"), Row.Score});
    Expected.resize(10);
    EXPECT_THAT(Rollers.Lists().lstHSTS, testing::ElementsAreArray(Expected));
    EXPECT_EQ(Rollers.Lists().lstBMoV, RollerLists::Default().lstBMoV);
    EXPECT_EQ(place.LoadedCopy().Lists(), Rollers.Lists()) << "what the next start finds";
  }
}

TEST(HighRollers, DamagedFilesAreSetAsideAndCountAsMissing) {
  const QByteArray Good = DefaultText();
  const auto With = [&](const char* Line) {
    return QByteArray(Good).replace(
        "Bea\xA4"
        "1300",
        Line);
  };
  std::mt19937 Random(1);
  QByteArray Noise(400, '\0');
  for (char& Byte : Noise) Byte = static_cast<char>(Random());
  const struct {
    const char* What;
    QByteArray File;
  } Rows[] = {
      {"empty", ""},
      {"19 lines", ScrambleText(Good.left(Good.lastIndexOf("Georgiana")))},
      {"21 lines", ScrambleText(Good + "Tam\xA4"
                                       "1\r\n")},
      {"cut in the last score", ScrambleText(Good.chopped(3))},
      {"cut in the last line end", ScrambleText(Good.chopped(1))},
      {"text behind the lines", ScrambleText(Good + "x")},
      {"no separator", ScrambleText(With("Bea1300"))},
      {"two separators", ScrambleText(With("B\xA4"
                                           "ea\xA4"
                                           "1300"))},
      {"no score", ScrambleText(With("Bea\xA4"))},
      {"no number", ScrambleText(With("Bea\xA4"
                                      "13x0"))},
      {"blank before the number", ScrambleText(With("Bea\xA4"
                                                    " 130"))},
      {"signed", ScrambleText(With("Bea\xA4"
                                   "-130"))},
      {"out of range", ScrambleText(With("Bea\xA4"
                                         "32768"))},
      {"far out of range", ScrambleText(With("Bea\xA4"
                                             "4294967297"))},
      {"other line ends", ScrambleText(QByteArray(Good).replace("\r\n", "\n"))},
      {"not scrambled", Good},
      {"random bytes", Noise},
      {"huge", ScrambleText(QByteArray(3 << 20, 'x') + Good)},
  };
  const Place place;
  QStringList Expected{QStringLiteral("highscores.dat")};
  for (const auto& Row : Rows) {
    SCOPED_TRACE(Row.What);
    place.Write(Row.File);
    testing::internal::CaptureStderr();
    const HighRollers Rollers = place.LoadedCopy();
    const std::string Report = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::count(Report.begin(), Report.end(), '\n'), 1) << Report;
    EXPECT_EQ(Rollers.Lists(), RollerLists::Default());
    EXPECT_EQ(place.Plain(), Good);
    Expected << QStringLiteral("highscores.dat.damaged%1").arg(Expected.size());
    EXPECT_EQ(Place::Read(place.Folder.filePath(Expected.back())), Row.File) << "nothing is destroyed";
    QStringList Found = place.Entries();
    EXPECT_THAT(Found, testing::UnorderedElementsAreArray(Expected));
  }
}

TEST(HighRollers, AFolderInTheFilesPlaceIsSetAsideToo) {
  const Place place;
  ASSERT_TRUE(QDir().mkpath(place.File + QStringLiteral("/inside")));
  testing::internal::CaptureStderr();
  HighRollers Rollers = place.LoadedCopy();
  EXPECT_NE(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(place.Plain(), DefaultText());
  EXPECT_TRUE(QDir(place.File + QStringLiteral(".damaged1/inside")).exists());
}

TEST(HighRollers, OddButWholeFilesKeepEveryByte) {
  // Unsorted, scores of few digits, an empty name, and bytes that nobody can type here.
  QByteArray Text = DefaultText();
  Text.replace(
      "Marlo\xA4"
      "1400",
      "\x80\x07 \x01<b>\xFF"
      "\xA4"
      "0");
  Text.replace(
      "Hugo\xA4"
      "1200",
      "\xA4"
      "32767");
  const Place place;
  place.Write(ScrambleText(Text));
  HighRollers Rollers = place.LoadedCopy();
  EXPECT_EQ(Rollers.Lists().lstHSTS[6], (HighRoller{QString(), 32767}));
  Rollers.Add(&RollerLists::lstHSTS, {QStringLiteral("New"), 1600});
  QByteArray Expected = UnscrambleText(ScrambleText(Text));
  Expected.replace(
      "Vivianne\xA4"
      "1050\r\n",
      "");
  EXPECT_EQ(place.Plain(),
            "New\xA4"
            "1600\r\n" +
                Expected);
}

TEST(HighRollers, ADamageDuringTheRunLosesNoEntry) {
  const Place place;
  HighRollers Rollers = place.LoadedCopy();
  Rollers.Add(&RollerLists::lstBMoV, {QStringLiteral("First"), 2000});
  for (const bool Missing : {false, true}) {
    Missing ? void(QFile::remove(place.File)) : place.Write("rubbish");
    testing::internal::CaptureStderr();
    Rollers.Add(&RollerLists::lstBMoV, {QStringLiteral("Next"), 1990});
    EXPECT_EQ(testing::internal::GetCapturedStderr().empty(), Missing);
    EXPECT_EQ(place.Held(), Rollers.Lists());
    EXPECT_EQ(place.Held().lstBMoV[0].Name, "First");
    EXPECT_EQ(place.Held().lstBMoV[1].Name, "Next");
  }
}

TEST(HighRollers, TwoCopiesKeepEachOthersEntries) {
  const Place place;
  HighRollers Here = place.LoadedCopy(), There = place.LoadedCopy();
  Here.Add(&RollerLists::lstHSTS, {QStringLiteral("Here"), 1600});
  There.Add(&RollerLists::lstHSTS, {QStringLiteral("There"), 1700});
  There.Add(&RollerLists::lstBMoV, {QStringLiteral("There"), 1700});
  Here.Add(&RollerLists::lstBMoV, {QStringLiteral("Here"), 1700});
  EXPECT_EQ(place.Held(), Here.Lists());
  EXPECT_EQ(Here.Lists().lstHSTS[0].Name, "There");
  EXPECT_EQ(Here.Lists().lstHSTS[1].Name, "Here");
  EXPECT_EQ(Here.Lists().lstBMoV[0].Name, "There") << "the earlier of two equal ones stands above";
  EXPECT_EQ(Here.Lists().lstBMoV[1].Name, "Here");
  // Ten better ones from the other copy: what is offered now stays out, and nothing is written over them.
  for (int i = 0; i < 10; ++i) There.Add(&RollerLists::lstHSTS, {QStringLiteral("Best"), 9000});
  Here.Add(&RollerLists::lstHSTS, {QStringLiteral("Late"), 8000});
  EXPECT_EQ(place.Held(), There.Lists());
  // A reset by the other copy holds for this one, too.
  There.ResetHighRollers();
  Here.Add(&RollerLists::lstHSTS, {QStringLiteral("After"), 1100});
  EXPECT_EQ(place.Held().lstHSTS[0].Name, "Tam");
  EXPECT_EQ(place.Held().lstHSTS[9].Name, "After");
}

TEST(HighRollers, ProcessesThatSaveAtTheSameTimeLoseNothing) {
  constexpr int Processes = 3, Saves = 3;
  const Place place;
  place.LoadedCopy();
  std::vector<pid_t> Children;
  for (int Process = 0; Process < Processes; ++Process) {
    const pid_t Child = fork();
    if (Child == 0) {
      alarm(ChildLimit);
      HighRollers Rollers = place.LoadedCopy();
      for (int i = 0; i < Saves; ++i) {
        Rollers.Add(&RollerLists::lstHSTS,
                    {QString::number(Process), static_cast<std::int16_t>(2000 + 10 * i + Process)});
        usleep(150000);
      }
      _exit(0);
    }
    Children.push_back(Child);
  }
  for (const pid_t Child : Children) {
    int Status = -1;
    EXPECT_EQ(waitpid(Child, &Status, 0), Child);
    EXPECT_EQ(Status, 0);
  }
  std::vector<int> Scores;
  for (const HighRoller& Entry : place.Held().lstHSTS) Scores.push_back(Entry.Score);
  EXPECT_THAT(Scores, testing::ElementsAre(2022, 2021, 2020, 2012, 2011, 2010, 2002, 2001, 2000, 1500));
}

TEST(HighRollers, WhatCannotBeSavedStaysForTheRunAndGoesWithTheNextSave) {
  const Place place;
  bool Works = true;
  HighRollers Rollers(place.File, [&](const QByteArray& Text) {
    return Works && ReplaceFile(place.File, Text);
  });
  Rollers.LoadHighRollers();
  Rollers.Add(&RollerLists::lstHSTS, {QStringLiteral("Zero"), 1600});
  const QByteArray Before = place.Plain();
  Works = false;
  Rollers.Add(&RollerLists::lstHSTS, {QStringLiteral("One"), 1800});
  Rollers.Add(&RollerLists::lstBMoV, {QStringLiteral("Two"), 1700});
  Rollers.ResetHighRollers();
  Rollers.LoadHighRollers();
  EXPECT_EQ(place.Plain(), Before);
  EXPECT_EQ(Rollers.Lists().lstHSTS[0].Name, "One");
  Works = true;
  place.Copy().Add(&RollerLists::lstHSTS, {QStringLiteral("Other"), 1900});
  Rollers.Add(&RollerLists::lstHSTS, {QStringLiteral("Three"), 1850});
  EXPECT_EQ(place.Held(), Rollers.Lists());
  EXPECT_EQ(place.Held().lstHSTS[0].Name, "Other");
  EXPECT_EQ(place.Held().lstHSTS[1].Name, "Three");
  EXPECT_EQ(place.Held().lstHSTS[2].Name, "One");
  EXPECT_EQ(place.Held().lstBMoV[0].Name, "Two");
  EXPECT_EQ(place.Held().lstHSTS[3].Name, "Zero") << "each once";
  Rollers.ResetHighRollers();
  Rollers.LoadHighRollers();
  EXPECT_EQ(Rollers.Lists(), RollerLists::Default());
}

TEST(HighRollers, AFullDiskLeavesTheOldFileWhole) {
  const Place place;
  place.LoadedCopy();
  EXPECT_TRUE(InChild([&] {
    HighRollers Rollers = place.LoadedCopy();
    signal(SIGXFSZ, SIG_IGN);
    rlimit Limit{};
    getrlimit(RLIMIT_FSIZE, &Limit);
    const rlimit Full{50, Limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &Full);
    Rollers.Add(&RollerLists::lstHSTS, {QStringLiteral("One"), 1800});
    const bool Kept = Rollers.Lists().lstHSTS[0].Name == QLatin1String("One") && place.Plain() == DefaultText();
    setrlimit(RLIMIT_FSIZE, &Limit);
    Rollers.Add(&RollerLists::lstHSTS, {QStringLiteral("Two"), 1700});
    return Kept && place.Held() == Rollers.Lists();
  }));
  EXPECT_EQ(place.Held().lstHSTS[0].Name, "One");
  EXPECT_EQ(place.Held().lstHSTS[1].Name, "Two");
  EXPECT_EQ(place.Entries(), QStringList{QStringLiteral("highscores.dat")}) << "no half-written file stays";
}

TEST(HighRollers, AReadOnlyFolderIsLeftAsItIs) {
  for (const QByteArray& Before : {DefaultText(), QByteArray("damaged"), QByteArray()}) {
    const Place place;
    if (!Before.isEmpty()) place.Write(ScrambleText(Before));
    const QStringList Entries = place.Entries();
    QFile::setPermissions(place.Folder.path(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    testing::internal::CaptureStderr();
    EXPECT_TRUE(InChild([&] {
      constexpr uid_t Nobody = 65534;
      if (geteuid() == 0 && setuid(Nobody) != 0) return false;
      HighRollers Rollers = place.LoadedCopy();
      Rollers.Add(&RollerLists::lstHSTS, {QStringLiteral("One"), 1800});
      Rollers.LoadHighRollers();
      return Rollers.Lists().lstHSTS[0].Name == QLatin1String("One");
    }));
    testing::internal::GetCapturedStderr();
    QFile::setPermissions(place.Folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(place.Entries(), Entries);
    if (!Before.isEmpty()) {
      EXPECT_EQ(place.Plain(), Before);
    }
  }
}

/// A copy that saves without a pause is killed at any moment: the file holds the lists before or after the save that
/// was under way, whole, and every save that had returned.
TEST(HighRollers, KilledAtAnyMomentTheFileIsWhole) {
  constexpr int Rounds = 200, MostSavesAwaited = 3;
  constexpr useconds_t LongestPause = 20000;
  constexpr std::chrono::seconds Limit(240);
  const Place place;
  place.LoadedCopy();
  std::mt19937 Random(7);
  RollerList Before = place.Held().lstHSTS;
  std::int16_t Score = 2000;
  int Saves = 0;
  const auto Start = std::chrono::steady_clock::now();
  for (int Round = 0; Round < Rounds; ++Round) {
    ASSERT_LT(std::chrono::steady_clock::now() - Start, Limit) << Round << " rounds, " << Saves << " saves";
    int Pipe[2];
    ASSERT_EQ(pipe(Pipe), 0);
    const pid_t Child = fork();
    ASSERT_GE(Child, 0);
    if (Child == 0) {
      alarm(ChildLimit);
      HighRollers Rollers = place.Copy();
      for (std::int16_t Next = Score; write(Pipe[1], "", 1) == 1; ++Next) {
        Rollers.Add(&RollerLists::lstHSTS, {QString::number(Next), Next});
      }
      _exit(1);
    }
    close(Pipe[1]);
    char Byte;
    int Returned = -1;  // the first byte only says that the child lives
    for (const int Awaited = Round % (MostSavesAwaited + 1); Returned < Awaited; ++Returned) {
      ASSERT_EQ(read(Pipe[0], &Byte, 1), 1);
    }
    usleep(std::uniform_int_distribution<useconds_t>(0, LongestPause)(Random));
    kill(Child, SIGKILL);
    waitpid(Child, nullptr, 0);
    while (read(Pipe[0], &Byte, 1) == 1) ++Returned;
    close(Pipe[0]);
    // A lock that doesn't name its owner yet is respected for some seconds: the test has no time for that.
    for (const QFileInfo& Left : QDir(place.Folder.path()).entryInfoList({QStringLiteral("*lock")}, QDir::Files)) {
      if (Left.size() == 0) QFile::remove(Left.filePath());
    }

    const auto Found = RollerLists::OfText(place.Plain());
    ASSERT_TRUE(Found) << place.Plain().constData();
    const int Saved = Found->lstHSTS[0].Score < Score ? 0 : Found->lstHSTS[0].Score - Score + 1;
    ASSERT_TRUE(Saved == Returned || Saved == Returned + 1) << Saved << " saved, " << Returned << " returned";
    for (int i = 0; i < Saved; ++i, ++Score) {
      std::copy_backward(Before.begin(), Before.end() - 1, Before.end());
      Before[0] = {QString::number(Score), Score};
    }
    ASSERT_EQ(Found->lstHSTS, Before);
    ASSERT_EQ(Found->lstBMoV, RollerLists::Default().lstBMoV);
    Saves += Saved;
  }
  EXPECT_GE(Saves, Rounds);
}

}  // namespace
}  // namespace blunko::test
