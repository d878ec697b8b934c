#pragma once

#include <QString>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "engine/HighRollersCheck.h"
#include "engine/Module1.h"
#include "storage/FileAccess.h"
#include "storage/IniInfo.h"
#include "storage/RollerLists.h"
#include "util/TbkUtil.h"

namespace blunko {

/// Info file key: the day on which nobody wants to be asked about the high rollers list any more, or `NoDay`.
inline const QString NoQuestionKey = QStringLiteral("NoHS");
inline const QString NoDay = QStringLiteral("Null");

/// "You just made number 3 on the ... top ten!  ", of the list that the word "turn" stands for, or any other word.
QString PlaceMade(const QString& Number, const QString& Word);

/// What the lists ask of the screen.
class HighRollersScreen {
 public:
  virtual ~HighRollersScreen() = default;

  /// One line of text to type, `Preset` in it; the empty string on Cancel.
  virtual QString AskName(const QString& Prompt, const QString& Title, const QString& Preset) = 0;
  /// The question whether to view the lists, modal: leaves "Yes" or another word in `FormMessage`.
  virtual void AskToView() = 0;
  /// The lists, modal.
  virtual void ViewLists() = 0;
};

/// The lists of a run and their file. What another running copy of the program saves is taken over, never lost. An
/// entry that can't be saved stays in the lists for the run, and is saved with the next one or at the end.
class HighRollers : public HighRollersCheck {
 public:
  /// The file lies in the folder that `Util` is told before the lists are loaded.
  HighRollers(Module1& State, const IniInfo& Info, const TbkUtil& Util, HighRollersScreen& Screen)
      : m(State), info(Info), util(Util), screen(Screen) {}
  ~HighRollers() override;
  Q_DISABLE_COPY_MOVE(HighRollers)

  /// Reads the file. A missing one is written anew with the default lists; a damaged one is set aside under another
  /// name, reported on standard error, and then counts as missing. One that can't be read may be good: it stays, and
  /// the lists stay as they are.
  void LoadHighRollers();
  /// Replaces the file by the default lists; false if it couldn't be. `Lists` shows them after the next load.
  bool ResetHighRollers();
  /// On a place among the ten there are congratulations, a name is asked for where the seat has a default one, and the
  /// entry is saved. Once the table is closing nobody is asked anything.
  void CheckHighTurn(const std::string& Name, std::int16_t Score) override;
  void CheckWhoopin(const std::string& Name, std::int16_t Score) override;

  const RollerLists& Lists() const { return lists; }

 private:
  void Check(WhichList List, const QString& Word, QString Name, std::int16_t Score);
  FileState CatchUp();
  void Take(const RollerLists& Saved);
  bool Save(const RollerLists& New);

  Module1& m;
  const IniInfo& info;
  const TbkUtil& util;
  HighRollersScreen& screen;
  RollerLists lists = RollerLists::Default();
  std::vector<std::pair<WhichList, HighRoller>> unsaved;  ///< entries of `lists` that the file hasn't taken yet
  bool toldUnsaved = false;
};

}  // namespace blunko
