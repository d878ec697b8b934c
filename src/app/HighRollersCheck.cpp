#include "app/HighRollersCheck.h"

#include <utility>

#include "storage/DayNumber.h"
#include "storage/NameRule.h"

namespace blunko {

/// What tells the two checks apart.
struct HighRollersCheck::Kind {
  WhichList List;
  QString Heading;
  QString Word;  ///< for the question whether to view the lists
};

void HighRollersCheck::CheckHighTurn(const std::string& Name, std::int16_t Score) {
  Check({&RollerLists::lstHSTS, QStringLiteral("\"Highest Single Turn Score\""), QStringLiteral("turn")},
        QString::fromStdString(Name), Score);
}

void HighRollersCheck::CheckWhoopin(const std::string& Name, std::int16_t Score) {
  Check({&RollerLists::lstBMoV, QStringLiteral("\"Biggest Whoopin'\""), QStringLiteral("whoop")},
        QString::fromStdString(Name), Score);
}

void HighRollersCheck::Check(const Kind& Of, QString Name, std::int16_t Score) {
  rollers.CatchUp();
  const auto Place = PlaceFor(rollers.Lists().*Of.List, Score);
  if (!Place) return;
  const QString QuietDay = info.ReadInfoValue(NoQuestionKey);
  const QString Number = QString::number(*Place + 1);
  if (Name.startsWith(QLatin1String("Player")) && !m.Quitting) {
    Name = screen.AskName(QStringLiteral("Congratulations!  You just made number ") + Number +
                              QStringLiteral(" on the ") + Of.Heading + QStringLiteral(" top ten!  What's your name?"),
                          QStringLiteral("Way To Go !!!"), Name);
  }
  Name = HeldToNameRule(Name);

  bool WantsToView = false;
  if (QuietDay != screen.Today() && !m.Quitting) {
    m.FormMessage = QStringList{Name, Number, Of.Word}.join(FieldSeparator).toStdString();
    screen.AskToView();
    WantsToView = m.FormMessage == "Yes";
    m.FormMessage.clear();
  }
  // While the person thought it over another copy may have saved: the entry goes where its score belongs by now.
  rollers.Add(Of.List, {std::move(Name), Score});
  if (WantsToView && !m.Quitting) screen.ViewLists();
}

}  // namespace blunko
