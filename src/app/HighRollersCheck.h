#pragma once

#include <QString>

#include <cstdint>
#include <string>

#include "engine/Module1.h"
#include "storage/HighRollers.h"
#include "storage/IniInfo.h"

namespace blunko {

/// Info file key: the day on which nobody wants to be asked about the high rollers list any more, or `NoDay`.
inline const QString NoQuestionKey = QStringLiteral("NoHS");
inline const QString NoDay = QStringLiteral("Null");

/// "You just made number 3 on the ... top ten!  ", of the list that the word "turn" stands for, or any other word.
QString PlaceMade(const QString& Number, const QString& Word);

/// What the check asks of the screen and the calendar.
class HighRollersScreen {
 public:
  virtual ~HighRollersScreen() = default;

  /// One line of text to type, `Preset` in it; the empty string on Cancel.
  virtual QString AskName(const QString& Prompt, const QString& Title, const QString& Preset) = 0;
  /// The question whether to view the lists, modal: leaves "Yes" or another word in `FormMessage`.
  virtual void AskToView() = 0;
  /// The lists, modal.
  virtual void ViewLists() = 0;
  /// Today's day number, as the info file writes it.
  virtual QString Today() const = 0;
};

/// Offers a person's score to the lists: on a place among the ten there are congratulations, a name is asked for where
/// the seat has a default one, and the entry is saved. Once the table is closing nobody is asked anything.
class HighRollersCheck {
 public:
  HighRollersCheck(Module1& State, const IniInfo& Info, HighRollers& Rollers, HighRollersScreen& Screen)
      : m(State), info(Info), rollers(Rollers), screen(Screen) {}

  void CheckHighTurn(const std::string& Name, std::int16_t Score);
  void CheckWhoopin(const std::string& Name, std::int16_t Score);

 private:
  void Check(WhichList List, const QString& Word, QString Name, std::int16_t Score);

  Module1& m;
  const IniInfo& info;
  HighRollers& rollers;
  HighRollersScreen& screen;
};

}  // namespace blunko
