#include "util/HighRollers.h"

#include <QDate>
#include <QStringList>

#include "storage/NameRule.h"
#include "storage/Numbers.h"

namespace blunko {

namespace {

const QString TurnWord = QStringLiteral("turn");

}  // namespace

QString PlaceMade(const QString& Number, const QString& Word) {
  const QString Heading =
      Word == TurnWord ? QStringLiteral("Highest Single Turn Score") : QStringLiteral("Biggest Whoopin'");
  return QStringLiteral("You just made number %1 on the \"%2\" top ten!  ").arg(Number, Heading);
}

HighRollers::~HighRollers() {
  if (!unsaved.empty()) Save(lists);
}

void HighRollers::LoadHighRollers() {
  const FileState State = CatchUp();
  if (State == FileState::Whole || State == FileState::Unreadable) return;
  Take(RollerLists::Default());
  Save(lists);
}

bool HighRollers::ResetHighRollers() { return Save(RollerLists::Default()); }

void HighRollers::CheckHighTurn(const std::string& Name, std::int16_t Score) {
  Check(&RollerLists::lstHSTS, TurnWord, QString::fromStdString(Name), Score);
}

void HighRollers::CheckWhoopin(const std::string& Name, std::int16_t Score) {
  Check(&RollerLists::lstBMoV, QStringLiteral("whoop"), QString::fromStdString(Name), Score);
}

void HighRollers::Check(WhichList List, const QString& Word, QString Name, std::int16_t Score) {
  CatchUp();
  const auto Place = PlaceFor(lists.*List, Score);
  if (!Place) return;
  const QString QuietDay = info.ReadInfoValue(NoQuestionKey);
  const QString Number = QString::number(*Place + 1);
  if (Name.startsWith(QLatin1String("Player")) && !m.Quitting) {
    Name = screen.AskName(
        QStringLiteral("Congratulations!  ") + PlaceMade(Number, Word) + QStringLiteral("What's your name?"),
        QStringLiteral("Way To Go !!!"), Name);
  }
  Name = HeldToNameRule(Name);

  bool WantsToView = false;
  if (QuietDay != DayNumber(QDate::currentDate()) && !m.Quitting) {
    m.FormMessage = QStringList{Name, Number, Word}.join(FieldSeparator).toStdString();
    screen.AskToView();
    WantsToView = m.FormMessage == "Yes";
    m.FormMessage.clear();
  }
  const HighRoller Entry{Name, Score};
  Insert(lists.*List, Entry);
  unsaved.emplace_back(List, Entry);
  Save(lists);
  if (WantsToView && !m.Quitting) screen.ViewLists();
}

/// Takes over what has been saved since, from a file that is `Whole`. A damaged one is `Foreign`.
FileState HighRollers::CatchUp() {
  FileState State = FileState::Whole;
  const auto Scrambled = ReadWholeFile(util.ListsPath(), LargestFile, &State);
  if (!Scrambled) return State;
  const auto Found = RollerLists::OfText(UnscrambleText(*Scrambled));
  if (!Found) return FileState::Foreign;
  Take(*Found);
  return FileState::Whole;
}

void HighRollers::Take(const RollerLists& Saved) {
  lists = Saved;
  for (const auto& [List, Entry] : unsaved) Insert(lists.*List, Entry);
}

/// `New`, which may be `lists`: as they are once what another copy has saved meanwhile is in them, too.
bool HighRollers::Save(const RollerLists& New) {
  const QString Path = util.ListsPath();
  const FileLock Lock(Path);
  const FileState State = Lock.IsHeld() ? CatchUp() : FileState::Unreadable;
  const bool Room = State == FileState::Foreign ? SetAside(Path, "high rollers lists") : State != FileState::Unreadable;
  if (Room && util.UtilStoreLists(ScrambleText(New.Text()))) {
    unsaved.clear();
    return true;
  }
  TellUnsaved(Path, toldUnsaved);
  return false;
}

}  // namespace blunko
