#include "app/HighRollersCheck.h"

#include <utility>

#include "storage/DayNumber.h"
#include "storage/NameRule.h"

namespace blunko {

namespace {

const QString TurnWord = QStringLiteral("turn");

}  // namespace

QString PlaceMade(const QString& Number, const QString& Word) {
  const QString Heading =
      Word == TurnWord ? QStringLiteral("Highest Single Turn Score") : QStringLiteral("Biggest Whoopin'");
  return QStringLiteral("You just made number %1 on the \"%2\" top ten!  ").arg(Number, Heading);
}

void HighRollersCheck::CheckHighTurn(const std::string& Name, std::int16_t Score) {
  Check(&RollerLists::lstHSTS, TurnWord, QString::fromStdString(Name), Score);
}

void HighRollersCheck::CheckWhoopin(const std::string& Name, std::int16_t Score) {
  Check(&RollerLists::lstBMoV, QStringLiteral("whoop"), QString::fromStdString(Name), Score);
}

void HighRollersCheck::Check(WhichList List, const QString& Word, QString Name, std::int16_t Score) {
  rollers.CatchUp();
  const auto Place = PlaceFor(rollers.Lists().*List, Score);
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
  if (QuietDay != screen.Today() && !m.Quitting) {
    m.FormMessage = QStringList{Name, Number, Word}.join(FieldSeparator).toStdString();
    screen.AskToView();
    WantsToView = m.FormMessage == "Yes";
    m.FormMessage.clear();
  }
  // While the person thought it over another copy may have saved: the entry goes where its score belongs by now.
  rollers.Add(List, {std::move(Name), Score});
  if (WantsToView && !m.Quitting) screen.ViewLists();
}

}  // namespace blunko
