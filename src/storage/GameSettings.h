#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "sound/SoundEvents.h"
#include "storage/Folders.h"
#include "storage/IniInfo.h"

namespace blunko {

/// Colours are 0xBBGGRR. Value of an entry of the list of text colours; black for any other index.
std::uint32_t ColourOfIndex(int Index);

/// Info file key of `ShowWelcome`; the welcome dialog writes it for the next start.
inline const QString ShowWelcomeMessageKey = QStringLiteral("ShowWelcomeMessage");

/// "No picture", as the info file writes it.
inline const QString NoBackground = QStringLiteral("(None)");

/// Size on the screen in per cent, 100 to 400; to be asked before the toolkit starts.
int ReadScale(const IniInfo& Info);

/// The settings, each with its default. They are read once; a setter stores its value and writes that one key at once.
class GameSettings {
 public:
  explicit GameSettings(const Folders& Where) : GameSettings(Where, IniInfo(Where.InfoPath())) {}
  /// Shares what `Info` has read.
  GameSettings(const Folders& Where, const IniInfo& Info);

  bool Scanned() const { return scanned; }
  void setScanned(bool Value);
  bool ShowWelcome() const { return showWelcome; }
  void setShowWelcome(bool Value);
  std::int16_t DieColour() const { return dieColour; }
  void setDieColour(std::int16_t Base);
  int TextColourIndex() const;
  void setTextColourIndex(int Index);
  std::uint32_t TextColour() const { return textColour; }
  void setTextColour(std::uint32_t Colour);
  const QString& Background() const { return background; }
  void setBackground(const QString& Path);
  bool SoundDisabled() const { return soundDisabled; }
  void setSoundDisabled(bool Value);
  /// While the result lives, setters gather what they write; it goes into the file at once.
  WrittenTogether WriteTogether() const { return WrittenTogether(OwnInfo); }
  /// 5000 or 10000; read from the file at every call, like the next.
  int ReadPlayToScore() const;
  void WritePlayToScore(int Value) const;
  /// 500 or 1000.
  int ReadBreakInScore() const;
  void WriteBreakInScore(int Value) const;
  int ComputerSpeed() const { return computerSpeed; }
  void setComputerSpeed(int Speed);
  bool SortDice() const { return sortDice; }
  void setSortDice(bool Value);
  bool MarkScorers() const { return markScorers; }
  void setMarkScorers(bool Value);
  /// Path of the wave file of an event, in the file system's bytes; empty for an unknown name.
  const std::string& GetSound(std::string_view p_sound_name) const;
  void SetSound(std::string_view p_sound_name, const std::string& p_sound_file);

  /// The default background: the picture "Satin.jpg" of the shipped ones.
  QString DefaultBackground() const;
  /// The wave file that an event has by default, in the temporary folder.
  std::string DefaultSound(std::string_view p_sound_name) const;

 private:
  void LoadSettings();
  void LoadSounds();
  void LoadAppearance();
  void LoadGameOptions();
  static int IndexOfColour(std::uint32_t Colour);

  bool ReadFlag(const QString& Key, bool Default) const;
  void WriteFlag(const QString& Key, bool Value) const;
  int ReadNumber(const QString& Key, int Default) const;

  Folders folders;
  IniInfo OwnInfo;
  bool scanned = false;
  bool showWelcome = true;
  std::int16_t dieColour = 0;
  QString background;
  std::uint32_t textColour = 0;
  int computerSpeed = 0;
  bool sortDice = true;
  bool markScorers = true;
  std::array<std::string, SoundEvents.size()> SoundFile;
  bool soundDisabled = false;
};

}  // namespace blunko
