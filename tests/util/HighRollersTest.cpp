#include <QRegularExpression>

#include <functional>
#include <gtest/gtest.h>

#include "storage/Numbers.h"
#include "tests/support/Place.h"
#include "util/HighRollers.h"

namespace blunko::test {

constexpr WhichList Turns = &RollerLists::lstHSTS, Whoops = &RollerLists::lstBMoV;

/// A running copy of the program, with a person who answers with `Typed` and `Word`; "Close" ends the program instead.
/// What is asked is written down.
struct Copy : HighRollersScreen {
  explicit Copy(const Place& At) : Info(At.Path("x.ini")) {
    Util.UtilSetFolder(At.Path());
    Rollers.LoadHighRollers();
  }
  void Turn(const char* Name, std::int16_t Score) { Rollers.CheckHighTurn(Name, Score); }
  QString AskName(const QString&, const QString&, const QString& Preset) override {
    Asked += " ask:" + Preset.toStdString();
    return Typed;
  }
  void AskToView() override {
    Asked += ' ' + m.FormMessage;
    if (Meanwhile) Meanwhile();
    m.Quitting = Word == "Close";
    if (!Word.empty()) m.FormMessage = m.Quitting ? "Yes" : Word;
  }
  void ViewLists() override { Asked += " lists"; }

  Module1 m;
  IniInfo Info;
  TbkUtil Util{""};
  HighRollers Rollers{m, Info, Util, *this};
  QString Typed;
  std::string Word, Asked;
  std::function<void()> Meanwhile;
};

struct HighRollersTest : testing::Test {
  QByteArray Text() const { return UnscrambleText(place.Get(ListsName)); }
  /// The first names in the file.
  QString Best(int Count) const {
    return QString::fromLatin1(Text()).replace(QRegularExpression("\u00A4\\d+\r\n"), " ").section(' ', 0, Count - 1);
  }

  const Place place;
};

TEST_F(HighRollersTest, AskAndInsert) {
  const QString Today = DayNumber(QDate::currentDate()), Yesterday = DayNumber(QDate::currentDate().addDays(-1));
  using Row = std::tuple<WhichList, const char*, int, QString, const char*, const char*, const char*, int, const char*>;
  const Row Rows[] = {
      {Turns, "Ann", 1050, "", "", "Yes", "", 9, "Vivianne"},  // equal to the last
      {Turns, "Ann", 1500, "", "", "Yes", " Ann¤2¤turn lists", 1, "Ann"},
      {Turns, "Ann", 1500, "", "", "Close", " Ann¤2¤turn", 1, "Ann"},
      {Turns, "Player 1", 1600, "", "", "Closed", "", 0, "Player 1"},
      {Whoops, "Ann", 1501, "Null", "", "", " Ann¤1¤whoop", 0, "Ann"},  // closed without a button
      {Turns, "Player 3", 1420, Yesterday, "Zoë", "No", " ask:Player 3 Zoë¤3¤turn", 2, "Zoë"},
      {Whoops, "Player1", 1600, "", "", "No", " ask:Player1 ¤1¤whoop", 0, ""},  // Cancel
      {Turns, "player 3", 1420, Today, "", "Yes", "", 2, "player 3"},
      {Turns, "Player", 1600, "", "a¤b\nÿ€c", "No", " ask:Player abyc¤1¤turn", 0, "abyc"},
  };
  for (const auto& [List, Name, Score, QuietDay, Typed, Word, Asked, Place, Held] : Rows) {
    SCOPED_TRACE(Asked);
    QFile::remove(place.Path(ListsName));
    Copy At(place);
    At.Info.WriteInfoValue(NoQuestionKey, QuietDay);
    At.Typed = QString::fromUtf8(Typed);
    At.Word = Word;
    At.m.Quitting = At.Word == "Closed";
    At.Meanwhile = [this] { EXPECT_EQ(Text(), RollerLists::Default().Text()) << "saved after the answer"; };
    List == Whoops ? At.Rollers.CheckWhoopin(Name, short(Score)) : At.Turn(Name, short(Score));
    EXPECT_EQ(At.Asked + At.m.FormMessage, Asked);
    EXPECT_EQ((RollerLists::OfText(Text()).value().*List)[size_t(Place)].Name, QString::fromUtf8(Held));
  }
}

TEST_F(HighRollersTest, CopiesScrambleTheFileAndKeepEachOthersEntries) {
  Copy Here(place), There(place);
  EXPECT_EQ(place.Get(ListsName).first(10), "\xD4\xE1\xED\x25\xB1\xB5\xB0\xB0\x8D\x8A");
  Here.Turn("Here", 1600);
  There.Turn("There", 1700);
  Here.Turn("Equal", 1700);
  EXPECT_EQ(Best(4), "There Equal Here Tam") << "the earlier of two equal ones stands above";
  for (const bool Damaged : {true, false}) {
    QFile::remove(place.Path(ListsName));
    if (Damaged) place.Put(ListsName, "rubbish");
    Here.Turn("Next", 1650);
    EXPECT_EQ(Best(3), "There Equal Next") << "a damage during the run loses no entry";
  }
  EXPECT_EQ(place.Get(ListsName + ".damaged1"), "rubbish") << "nothing is destroyed";
  // Ten better ones from the other copy while the person thinks it over: nothing is written over them.
  Here.Meanwhile = [&] {
    for (int i = 0; i < 10; ++i) There.Turn("Best", 9000);
  };
  Here.Turn("Late", 8000);
  EXPECT_EQ(Text(), There.Rollers.Lists().Text());
  QFile::remove(place.Path(ListsName));
  There.Rollers.LoadHighRollers();
  Here.Meanwhile = nullptr;
  Here.Turn("After", 1600);
  EXPECT_EQ(Best(2), "After Tam") << "a list that is gone is the default one again, for the other copy, too";
}

TEST_F(HighRollersTest, WhatCannotBeSavedStaysForTheRunAndGoesWithTheNextSaveOrAtTheEnd) {
  const QByteArray Good = ScrambleText(RollerLists::Default().Text());
  const std::tuple<mode_t, mode_t, QByteArray> Rows[] = {
      {0555, 0644, Good}, {0755, 0, Good}, {0555, 0644, "damaged, and can't be moved"}};
  for (const auto& [FolderMode, FileMode, File] : Rows) {
    place.Put(ListsName, File);
    place.Chmod(ListsName, FileMode);
    place.Chmod("", FolderMode);
    std::optional<Unprivileged> Nobody(place);
    testing::internal::CaptureStderr();
    std::optional<Copy> Run(place);
    Run->Turn("One", 1800);
    EXPECT_FALSE(Run->Rollers.ResetHighRollers());
    Run->Rollers.LoadHighRollers();
    EXPECT_EQ(QString::fromStdString(testing::internal::GetCapturedStderr()).count("can't be saved"), 1);
    EXPECT_EQ(Run->Rollers.Lists().lstHSTS[0].Name, "One");
    Nobody.reset();
    place.Chmod("", 0755);
    place.Chmod(ListsName, 0644);
    EXPECT_EQ(place.Get(ListsName), File);
    EXPECT_EQ(place.Names(), QStringList(ListsName));
    Copy(place).Turn("Other", 1900);
    if (FileMode == 0) Run->Turn("Three", 1850);
    Run.reset();
    EXPECT_EQ(Best(4), FileMode == 0 ? "Other Three One Tam" : "Other One Tam Irene") << "each once";
  }
}

}  // namespace blunko::test
