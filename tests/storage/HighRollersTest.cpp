#include <QRegularExpression>

#include <gtest/gtest.h>

#include "storage/DayNumber.h"
#include "storage/HighRollers.h"
#include "tests/support/Place.h"

namespace blunko::test {

const QString Name = QStringLiteral("highscores.dat");
constexpr WhichList Turns = &RollerLists::lstHSTS;

/// Text with a bar for each separator.
static QByteArray Plain(QByteArray Text) { return Text.replace('|', '\xA4'); }

/// The program's copies that work in one folder.
struct HighRollersTest : testing::Test, ListStore {
  HighRollers Copy() {
    HighRollers Made(place.Path(Name), *this);
    Made.LoadHighRollers();
    return Made;
  }
  bool UtilStoreLists(const QByteArray& Text) const override { return ReplaceFile(place.Path(Name), Text); }
  QByteArray Text() const { return UnscrambleText(place.Get(Name)); }
  /// The first names in the file.
  QString Best(int Count) const {
    return QString::fromLatin1(Text()).replace(QRegularExpression("\u00A4\\d+\r\n"), " ").section(' ', 0, Count - 1);
  }

  const Place place;
};

TEST(DayNumber, CountsFromItsFirstDay) { EXPECT_EQ(DayNumber(QDate(2006, 1, 1)), "38718"); }

TEST(RollerLists, AreReadFromAWholeTextOnly) {
  const QByteArray Whole = RollerLists::Default().Text(), Last = Plain("Georgiana|1050\r\n");
  for (const char* Bad : {"", "Tam|1\r\nTam|1\r\n", "Georgiana|10", "Bea1300\r\n", "B|ea|1300\r\n", "Bea|-130\r\n",
                          "Bea|4294967297\r\n", "Bea|1050\n"}) {
    EXPECT_FALSE(RollerLists::OfText(QByteArray(Whole).replace(Last, Plain(Bad)))) << Bad;
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
    QFile::remove(place.Path(Name));
    if (Damaged) place.Put(Name, "rubbish");
    Here.Add(Turns, {QStringLiteral("Next"), 1650});
    EXPECT_EQ(Best(3), "There Equal Next") << "a damage during the run loses no entry";
  }
  EXPECT_EQ(place.Get(Name + ".damaged1"), "rubbish") << "nothing is destroyed";
  // Ten better ones from the other copy: what is offered now stays out, and nothing is written over them.
  for (int i = 0; i < 10; ++i) There.Add(Turns, {QStringLiteral("Best"), 9000});
  Here.Add(Turns, {QStringLiteral("Late"), 8000});
  EXPECT_EQ(Text(), There.Lists().Text());
  There.ResetHighRollers();  // holds for the other copy, too
  Here.Add(Turns, {QStringLiteral("After"), 1600});
  EXPECT_EQ(Best(2), "After Tam");
}

TEST_F(HighRollersTest, WhatCannotBeSavedStaysForTheRunAndGoesWithTheNextSave) {
  const QByteArray Good = ScrambleText(RollerLists::Default().Text());
  const std::tuple<mode_t, mode_t, QByteArray> Rows[] = {
      {0555, 0644, Good}, {0755, 0, Good}, {0555, 0644, "damaged, and can't be moved"}};
  for (const auto& [FolderMode, FileMode, File] : Rows) {
    place.Put(Name, File);
    place.Chmod(Name, FileMode);
    place.Chmod("", FolderMode);
    std::optional<Unprivileged> Nobody(place);
    HighRollers Rollers = Copy();
    Rollers.Add(Turns, {QStringLiteral("One"), 1800});
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
    EXPECT_EQ(Best(4), "Other Three One Tam") << "each once";
  }
}

}  // namespace blunko::test
