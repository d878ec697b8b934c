#include "storage/GameSettings.h"

#include <QFile>

#include <algorithm>

#include "engine/GameOptions.h"
#include "sound/SoundEvents.h"
#include "storage/Numbers.h"

namespace blunko {

namespace {

const QString ScannedKey = QStringLiteral("Scanned");
const QString DieColorKey = QStringLiteral("DieColor");
const QString TextColorKey = QStringLiteral("TextColor");
const QString BackgroundKey = QStringLiteral("Background");
const QString SoundFXOFFKey = QStringLiteral("SoundFXOFF");
const QString PlayToScoreKey = QStringLiteral("defPlayToScore");
const QString BreakInScoreKey = QStringLiteral("defBreakInScore");
const QString ComputerFastKey = QStringLiteral("ComputerFast");
const QString SortDiceKey = QStringLiteral("SortDice");
const QString MarkScorersKey = QStringLiteral("MarkScorers");

constexpr std::array<std::uint32_t, 8> TextColours{0x000000, 0x0000FF, 0x00FF00, 0x00FFFF,
                                                   0xFF0000, 0xFF00FF, 0xFFFF80, 0xFFFFFF};
constexpr int White = 7;

const SoundEvent* FindEvent(std::string_view Name) {
  const auto Found = std::find_if(SoundEvents.begin(), SoundEvents.end(),
                                  [Name](const SoundEvent& Event) { return Event.Name == Name; });
  return Found == SoundEvents.end() ? nullptr : &*Found;
}

QString KeyOfSound(std::string_view Name) {
  return QString::fromLatin1(Name.data(), static_cast<qsizetype>(Name.size())) + QStringLiteral("Sound");
}

}  // namespace

std::uint32_t ColourOfIndex(int Index) {
  return Index >= 1 && Index <= 7 ? TextColours[static_cast<std::size_t>(Index)] : 0;
}

int ReadScale(const IniInfo& Info) {
  const int Scale = Info.ReadInfoValue(QStringLiteral("Scale")).trimmed().toInt();
  return Scale >= 100 && Scale <= 400 ? Scale : 100;
}

GameSettings::GameSettings(const Folders& Where, const IniInfo& Info) : folders(Where), OwnInfo(Info) {
  LoadSettings();
}

void GameSettings::setScanned(bool Value) {
  scanned = Value;
  WriteFlag(ScannedKey, Value);
}

void GameSettings::setShowWelcome(bool Value) {
  showWelcome = Value;
  WriteFlag(ShowWelcomeMessageKey, Value);
}

void GameSettings::setDieColour(std::int16_t Base) {
  dieColour = Base;
  OwnInfo.WriteInfoValue(DieColorKey, QString::number(Base));
}

int GameSettings::TextColourIndex() const { return IndexOfColour(textColour); }

void GameSettings::setTextColourIndex(int Index) {
  textColour = ColourOfIndex(Index);
  OwnInfo.WriteInfoValue(TextColorKey, QString::number(Index));
}

void GameSettings::setTextColour(std::uint32_t Colour) {
  textColour = Colour;
  OwnInfo.WriteInfoValue(TextColorKey, QString::number(IndexOfColour(Colour)));
}

void GameSettings::setBackground(const QString& Path) {
  background = Path;
  OwnInfo.WriteInfoPath(BackgroundKey, QFile::encodeName(Path));
}

void GameSettings::setSoundDisabled(bool Value) {
  soundDisabled = Value;
  WriteFlag(SoundFXOFFKey, Value);
}

int GameSettings::ReadPlayToScore() const { return ReadNumber(PlayToScoreKey, 5000) == 10000 ? 10000 : 5000; }

void GameSettings::WritePlayToScore(int Value) const { OwnInfo.WriteInfoValue(PlayToScoreKey, QString::number(Value)); }

int GameSettings::ReadBreakInScore() const { return ReadNumber(BreakInScoreKey, 500) == 1000 ? 1000 : 500; }

void GameSettings::WriteBreakInScore(int Value) const {
  OwnInfo.WriteInfoValue(BreakInScoreKey, QString::number(Value));
}

void GameSettings::setComputerSpeed(int Speed) {
  computerSpeed = Speed;
  OwnInfo.WriteInfoValue(ComputerFastKey, QString::number(Speed));
}

void GameSettings::setSortDice(bool Value) {
  sortDice = Value;
  WriteFlag(SortDiceKey, Value);
}

void GameSettings::setMarkScorers(bool Value) {
  markScorers = Value;
  WriteFlag(MarkScorersKey, Value);
}

const std::string& GameSettings::GetSound(std::string_view p_sound_name) const {
  static const std::string None;
  const SoundEvent* Event = FindEvent(p_sound_name);
  return Event == nullptr ? None : SoundFile[static_cast<std::size_t>(Event - SoundEvents.data())];
}

void GameSettings::SetSound(std::string_view p_sound_name, const std::string& p_sound_file) {
  if (const SoundEvent* Event = FindEvent(p_sound_name)) {
    SoundFile[static_cast<std::size_t>(Event - SoundEvents.data())] = p_sound_file;
  }
  OwnInfo.WriteInfoPath(KeyOfSound(p_sound_name), QByteArray::fromStdString(p_sound_file));
}

QString GameSettings::DefaultBackground() const {
  return folders.Shipped(QStringLiteral("Background")) + QStringLiteral("/Satin.jpg");
}

std::string GameSettings::DefaultSound(std::string_view p_sound_name) const {
  const SoundEvent* Event = FindEvent(p_sound_name);
  return Event == nullptr ? "" : QFile::encodeName(folders.Temp + QString::fromLatin1(Event->File)).toStdString();
}

void GameSettings::LoadSettings() {
  scanned = ReadFlag(ScannedKey, false);
  showWelcome = ReadFlag(ShowWelcomeMessageKey, true);
  LoadSounds();
  LoadAppearance();
  LoadGameOptions();
}

void GameSettings::LoadSounds() {
  for (std::size_t i = 0; i < SoundEvents.size(); ++i) {
    const QByteArray Default = QByteArray::fromStdString(DefaultSound(SoundEvents[i].Name));
    SoundFile[i] = OwnInfo.ReadInfoPath(KeyOfSound(SoundEvents[i].Name), Default).toStdString();
  }
  soundDisabled = ReadFlag(SoundFXOFFKey, false);
}

void GameSettings::LoadAppearance() {
  dieColour = LeadingNumber(OwnInfo.ReadInfoValue(DieColorKey, QString::number(DefaultDiceSet)));
  if (dieColour <= 0) dieColour = DefaultDiceSet;  // below 0 a die could have the picture of none

  background = QFile::decodeName(OwnInfo.ReadInfoPath(BackgroundKey, QFile::encodeName(DefaultBackground())));
  if (background != NoBackground && !FileExists(background)) {
    const WrittenTogether Repair(OwnInfo);
    const bool HaveDefault = FileExists(DefaultBackground());
    setBackground(HaveDefault ? DefaultBackground() : NoBackground);
    setTextColourIndex(HaveDefault ? White : 0);
  }
  // A number beyond the list is a colour value, from an older file.
  const int Stored = ReadNumber(TextColorKey, 0);
  textColour = ColourOfIndex(Stored > 7 ? IndexOfColour(static_cast<std::uint32_t>(Stored)) : Stored);
}

void GameSettings::LoadGameOptions() {
  const int Speed = ReadNumber(ComputerFastKey, 0);
  computerSpeed = Speed >= 0 && Speed <= 2 ? Speed : 0;
  sortDice = ReadFlag(SortDiceKey, true);
  markScorers = ReadFlag(MarkScorersKey, true);
}

int GameSettings::IndexOfColour(std::uint32_t Colour) {
  const auto Found = std::find(TextColours.begin(), TextColours.end(), Colour);
  return Found == TextColours.end() ? 0 : static_cast<int>(Found - TextColours.begin());
}

/// Words in any case, and numbers, of which every one but 0 is true.
bool GameSettings::ReadFlag(const QString& Key, bool Default) const {
  const QString Text = OwnInfo.ReadInfoValue(Key).trimmed();
  if (Text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0) return true;
  if (Text.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0) return false;
  bool IsNumber = false;
  const double Value = Text.toDouble(&IsNumber);
  return IsNumber ? Value != 0 : Default;
}

void GameSettings::WriteFlag(const QString& Key, bool Value) const {
  OwnInfo.WriteInfoValue(Key, Value ? QStringLiteral("True") : QStringLiteral("False"));
}

int GameSettings::ReadNumber(const QString& Key, int Default) const {
  bool IsNumber = false;
  const int Value = OwnInfo.ReadInfoValue(Key).trimmed().toInt(&IsNumber);
  return IsNumber ? Value : Default;
}

}  // namespace blunko
