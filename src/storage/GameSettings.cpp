#include "storage/GameSettings.h"

#include <QFile>

#include <algorithm>
#include <array>

#include "sound/SoundEvents.h"
#include "storage/Numbers.h"

namespace blunko {

namespace {

constexpr char TextColorKey[] = "TextColor";
constexpr char PlayToScoreKey[] = "defPlayToScore";
constexpr char BreakInScoreKey[] = "defBreakInScore";

constexpr auto TextColours =
    std::to_array<std::uint32_t>({0x000000, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF80, 0xFFFFFF});
constexpr int White = 7;

int IndexOfColour(std::uint32_t Colour) {
  const auto Found = std::find(TextColours.begin(), TextColours.end(), Colour);
  return Found == TextColours.end() ? 0 : static_cast<int>(Found - TextColours.begin());
}

QString KeyOfSound(std::string_view Name) {
  return QString::fromLatin1(Name.data(), static_cast<qsizetype>(Name.size())) + QStringLiteral("Sound");
}

// How a value stands in the file. One that can't be read leaves the default in its place.

/// Words in any case, and numbers, of which every one but 0 is true.
void Read(const IniInfo& Info, const QString& Key, bool& Value) {
  const QString Text = Info.ReadInfoValue(Key).trimmed();
  bool IsNumber = false;
  const double Number = Text.toDouble(&IsNumber);
  if (IsNumber) Value = Number != 0;
  for (const bool Word : {false, true}) {
    if (Text.compare(QLatin1String(Word ? "True" : "False"), Qt::CaseInsensitive) == 0) Value = Word;
  }
}

void Write(const IniInfo& Info, const QString& Key, bool Value) {
  Info.WriteInfoValue(Key, QLatin1String(Value ? "True" : "False"));
}

void Read(const IniInfo& Info, const QString& Key, std::int32_t& Value) {
  bool IsNumber = false;
  const int Number = Info.ReadInfoValue(Key).trimmed().toInt(&IsNumber);
  if (IsNumber) Value = Number;
}

/// The number that the text begins with; 0 counts as none.
void Read(const IniInfo& Info, const QString& Key, std::int16_t& Value) {
  const std::int16_t Number = LeadingNumber(Info.ReadInfoValue(Key));
  if (Number != 0) Value = Number;
}

void Write(const IniInfo& Info, const QString& Key, std::int32_t Value) {
  Info.WriteInfoValue(Key, QString::number(Value));
}

/// A path.
void Read(const IniInfo& Info, const QString& Key, QString& Value) {
  Value = QFile::decodeName(Info.ReadInfoPath(Key, QFile::encodeName(Value)));
}

void Write(const IniInfo& Info, const QString& Key, const QString& Value) {
  Info.WriteInfoPath(Key, QFile::encodeName(Value));
}

}  // namespace

template <typename T>
Setting<T>::Setting(const IniInfo& Info, const char* Key, T Default)
    : info(Info), key(Key), own(std::move(Default)), value(&own) {
  Read(info, key, *value);
}

template <typename T>
Setting<T>::Setting(const IniInfo& Info, const char* Key, T* Place) : info(Info), key(Key), value(Place) {
  Read(info, key, *value);
}

template <typename T>
Setting<T>& Setting<T>::operator=(const T& New) {
  *value = New;
  Write(info, key, New);
  return *this;
}

template class Setting<bool>;
template class Setting<std::int16_t>;
template class Setting<std::int32_t>;
template class Setting<QString>;

int ReadNumber(const IniInfo& Info, const QString& Key) {
  std::int32_t Number = 0;
  Read(Info, Key, Number);
  return Number;
}

std::uint32_t ColourOfIndex(int Index) {
  const auto Place = static_cast<std::size_t>(Index);
  return Place < TextColours.size() ? TextColours[Place] : 0;
}

int ReadScale(const IniInfo& Info) {
  const int Scale = ReadNumber(Info, QStringLiteral("Scale"));
  return Scale >= 100 && Scale <= 400 ? Scale : 100;
}

GameSettings::GameSettings(const Folders& Where, const IniInfo& Info) : folders(Where), OwnInfo(Info) {
  LoadSounds();
  LoadAppearance();
}

int GameSettings::TextColourIndex() const { return IndexOfColour(textColour); }

void GameSettings::setTextColourIndex(int Index) {
  textColour = ColourOfIndex(Index);
  Write(OwnInfo, TextColorKey, Index);
}

void GameSettings::setTextColour(std::uint32_t Colour) {
  textColour = Colour;
  Write(OwnInfo, TextColorKey, IndexOfColour(Colour));
}

int GameSettings::ReadPlayToScore() const { return ReadNumber(OwnInfo, PlayToScoreKey) == 10000 ? 10000 : 5000; }

void GameSettings::WritePlayToScore(int Value) const { Write(OwnInfo, PlayToScoreKey, Value); }

int GameSettings::ReadBreakInScore() const { return ReadNumber(OwnInfo, BreakInScoreKey) == 1000 ? 1000 : 500; }

void GameSettings::WriteBreakInScore(int Value) const { Write(OwnInfo, BreakInScoreKey, Value); }

void GameSettings::SetSound(std::string_view p_sound_name, const std::string& p_sound_file) {
  const auto Known = options.Sounds.find(p_sound_name);
  if (Known != options.Sounds.end()) Known->second = p_sound_file;
  OwnInfo.WriteInfoPath(KeyOfSound(p_sound_name), QByteArray::fromStdString(p_sound_file));
}

QString GameSettings::DefaultBackground() const {
  return folders.Shipped(QStringLiteral("Background")) + QStringLiteral("/Satin.jpg");
}

std::string GameSettings::DefaultSound(std::string_view p_sound_name) const {
  const auto Event = std::ranges::find(SoundEvents, p_sound_name, &SoundEvent::Name);
  return Event == SoundEvents.end() ? "" : (QFile::encodeName(folders.Temp) + Event->File).toStdString();
}

void GameSettings::LoadSounds() {
  for (const SoundEvent& Event : SoundEvents) {
    const QByteArray Default = QByteArray::fromStdString(DefaultSound(Event.Name));
    options.Sounds[Event.Name] = OwnInfo.ReadInfoPath(KeyOfSound(Event.Name), Default).toStdString();
  }
}

void GameSettings::LoadAppearance() {
  if (Background != NoBackground && !FileExists(Background)) {
    const WrittenTogether Repair(OwnInfo);
    const bool HaveDefault = FileExists(DefaultBackground());
    Background = HaveDefault ? DefaultBackground() : NoBackground;
    setTextColourIndex(HaveDefault ? White : 0);
  }
  // A number beyond the list is a colour value, from an older file.
  const int Stored = ReadNumber(OwnInfo, TextColorKey);
  textColour = ColourOfIndex(Stored > White ? IndexOfColour(static_cast<std::uint32_t>(Stored)) : Stored);
}

}  // namespace blunko
