#include "storage/SavedSetup.h"

#include <QStringList>

#include "storage/NameRule.h"

namespace blunko {

namespace {

const QString CountKey = QStringLiteral("defNumPlayers");
const QString NamesKey = QStringLiteral("defPlayerNameString");
const QString ComputersKey = QStringLiteral("defPlayerIsCompString");
const QString StylesKey = QStringLiteral("defPlayerStyleString");
const QString UnusedSeat = QStringLiteral("~");

/// The fields of a key, each with a separator behind it that the last one can lack. A key that isn't there yet is
/// written with its default, which has bars for separators.
QStringList FieldsOf(const IniInfo& Info, const QString& Key, const char* Default) {
  QString Text = Info.ReadInfoValue(Key);
  if (Text.isEmpty()) {
    Text = QString::fromLatin1(Default).replace(QLatin1Char('|'), FieldSeparator);
    Info.WriteInfoValue(Key, Text);
  }
  if (Text.endsWith(FieldSeparator)) Text.chop(1);
  return Text.split(FieldSeparator);
}

/// The file counts the styles from 0; what is none counts as Normal.
std::uint8_t StyleOf(const QString& Field) {
  const auto Index = Field.trimmed().toUShort();
  return static_cast<std::uint8_t>(Normal + (Index < StyleWords.size() ? Index : 0));
}

}  // namespace

GameSetup SetupForPlayers(int NumPlayers) {
  GameSetup Setup;
  Setup.NumPlayers = static_cast<std::uint8_t>(NumPlayers);
  for (int i = 0; i < NumPlayers; ++i) Setup.Seats[i].Name = "Player" + std::to_string(i + 1);
  if (NumPlayers == 1) Setup.Seats[1] = {"Computer", true};
  return Setup;
}

GameSetup ReadSetup(const IniInfo& Info, const GameSettings& Settings) {
  const WrittenTogether Defaults(Info);
  const int Count = ReadNumber(Info, CountKey);
  GameSetup Setup = SetupForPlayers(Count >= 1 && Count <= MaxSeats ? Count : 1);
  Setup.PlayToScore = static_cast<std::int16_t>(Settings.ReadPlayToScore());
  Setup.BreakInScore = static_cast<std::int16_t>(Settings.ReadBreakInScore());

  const QStringList Names = FieldsOf(Info, NamesKey, "Player1|Player2|Player3|Player4|Player5|Player6|Player7|Player8");
  const QStringList Computers = FieldsOf(Info, ComputersKey, "False|True|True|True|True|True|True|True|");
  const QStringList Styles = FieldsOf(Info, StylesKey, "00|0|22|33|44|55|66|77|");
  for (int i = 0; i < Setup.NumPlayers; ++i) {
    if (i < Computers.size() && Computers[i] == UnusedSeat) continue;  // the number of players was raised by hand
    GameSetup::Seat& Player = Setup.Seats[i];
    if (i < Names.size()) {
      const QString Held = HeldToNameRule(Names[i]).left(LongestName);
      if (!Held.isEmpty() || Names[i].isEmpty()) Player.Name = Held.toStdString();
    }
    Player.IsComputer = i < Computers.size() && Computers[i] == QLatin1String("True");
    if (Player.IsComputer && i < Styles.size()) Player.Style = StyleOf(Styles[i]);
  }
  if (Setup.NumPlayers == 1 && Styles.size() > 1) Setup.Seats[1].Style = StyleOf(Styles[1]);
  return Setup;
}

void WriteSetup(const GameSetup& Setup, const IniInfo& Info, const GameSettings& Settings) {
  QString Names, Computers, StyleFields;
  for (int i = 0; i < MaxSeats; ++i) {
    const GameSetup::Seat& Player = Setup.Seats[i];
    const bool Used = i < Setup.NumPlayers;
    // The one player's opponent sits on no seat that counts, but has a style.
    const bool HasStyle = Used ? Player.IsComputer : Setup.NumPlayers == 1 && i == 1;
    Names += (Used ? QString::fromStdString(Player.Name) : UnusedSeat) + FieldSeparator;
    Computers +=
        (Used ? (Player.IsComputer ? QStringLiteral("True") : QStringLiteral("False")) : UnusedSeat) + FieldSeparator;
    StyleFields += (HasStyle ? QString::number(Player.Style - Normal) : QStringLiteral("%1%1").arg(i)) + FieldSeparator;
  }
  const WrittenTogether Saving(Info);
  Settings.WritePlayToScore(Setup.PlayToScore);
  Settings.WriteBreakInScore(Setup.BreakInScore);
  Info.WriteInfoValue(CountKey, QString::number(Setup.NumPlayers));
  Info.WriteInfoValue(NamesKey, Names);
  Info.WriteInfoValue(ComputersKey, Computers);
  Info.WriteInfoValue(StylesKey, StyleFields);
}

}  // namespace blunko
