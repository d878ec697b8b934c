#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "storage/FileAccess.h"

namespace blunko {

/// An entry of the lists.
struct HighRoller {
  QString Name;  ///< may be empty
  std::int16_t Score = 0;
  bool operator==(const HighRoller&) const = default;
};

/// The top ten, best first.
using RollerList = std::array<HighRoller, 10>;

/// Index of the entry that a score would push down: the first one that it beats, an equal one not. Nothing for a score
/// that stays out.
std::optional<int> PlaceFor(const RollerList& List, std::int16_t Score);

/// What the file holds.
struct RollerLists {
  RollerList lstHSTS;  ///< "Highest Single Turn Score"
  RollerList lstBMoV;  ///< "Biggest Whoopin'", margin of victory
  bool operator==(const RollerLists&) const = default;

  /// The lists that a reset brings back.
  static RollerLists Default();
  /// Reads the plain text of the file, 20 lines in Latin-1; nothing for a text that isn't whole.
  static std::optional<RollerLists> OfText(const QByteArray& Text);
  QByteArray Text() const;
};

/// Picks one of the two lists.
using WhichList = RollerList RollerLists::*;

/// The scrambling of the file, byte for byte. No byte of scrambled text is 0; the plain byte 255 doesn't survive.
QByteArray ScrambleText(QByteArray Text);
QByteArray UnscrambleText(QByteArray Text);

/// Where the file's text goes.
class ListStore {
 public:
  virtual ~ListStore() = default;

  /// Puts a scrambled text in place of the file; false if the old one is still there.
  virtual bool UtilStoreLists(const QByteArray& Text) const = 0;
};

/// The lists of a run and their file. What another running copy of the program saves is taken over, never lost.
/// Failures are silent: an entry that couldn't be saved stays in the lists for the run, and the next save carries it.
class HighRollers {
 public:
  HighRollers(QString Path, const ListStore& Store) : path(std::move(Path)), store(Store) {}

  /// Reads the file. A missing one is written anew with the default lists; a damaged one is set aside under another
  /// name, reported on standard error, and then counts as missing. One that can't be read may be good: it stays, and
  /// the lists stay as they are.
  void LoadHighRollers();
  /// Replaces the file by the default lists, unless it can't be read. `Lists` shows them after the next load.
  void ResetHighRollers();
  /// Takes over what has been saved since, from a file that is `Whole`. A damaged one is `Foreign`.
  FileState CatchUp();
  /// Inserts the entry into the list as it is by now, where its score belongs, and saves.
  void Add(WhichList List, const HighRoller& Entry);

  const RollerLists& Lists() const { return lists; }

 private:
  void Take(const RollerLists& Saved);
  bool MakeRoom(FileState State) const;
  void SaveHighRollers();

  QString path;
  const ListStore& store;
  RollerLists lists = RollerLists::Default();
  std::vector<std::pair<WhichList, HighRoller>> unsaved{};  ///< entries of `lists` that the file hasn't taken yet
};

}  // namespace blunko
