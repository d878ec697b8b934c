#pragma once

#include <QString>

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/GameOptions.h"
#include "storage/Folders.h"
#include "storage/IniInfo.h"

namespace blunko {

/// Colours are 0xBBGGRR. Value of an entry of the list of text colours; black for any other index.
std::uint32_t ColourOfIndex(int Index);

/// Info file key of `ShowWelcome`; the welcome dialog writes it for the next start.
inline constexpr char ShowWelcomeMessageKey[] = "ShowWelcomeMessage";

/// "No picture", as the info file writes it.
inline const QString NoBackground = QStringLiteral("(None)");

/// The whole number under a key; 0 where there is none.
int ReadNumber(const IniInfo& Info, const QString& Key);

/// Size on the screen in per cent, 100 to 400; to be asked before the toolkit starts.
int ReadScale(const IniInfo& Info);

/// A setting: read from the info file when it is made, and kept; a new value is written under its key at once.
template <typename T>
class Setting {
 public:
  Setting(const IniInfo& Info, const char* Key, T Default);
  /// Kept in `Place`, which holds the default.
  Setting(const IniInfo& Info, const char* Key, T* Place);
  Q_DISABLE_COPY_MOVE(Setting)
  operator const T&() const { return *value; }
  Setting& operator=(const T& New);

 private:
  const IniInfo& info;
  const char* const key;
  T own{};
  T* const value;
};

/// The settings, each with its default.
class GameSettings {
  const Folders folders;
  const IniInfo OwnInfo;
  GameOptions options;
  std::uint32_t textColour = 0;

 public:
  /// Shares what `Info` has read.
  GameSettings(const Folders& Where, const IniInfo& Info);

  /// What of them the rules read.
  const GameOptions& Options() const { return options; }

  Setting<bool> Scanned{OwnInfo, "Scanned", false};
  Setting<bool> ShowWelcome{OwnInfo, ShowWelcomeMessageKey, true};
  Setting<std::int16_t> DieColour{OwnInfo, "DieColor", &options.DieColour};
  Setting<QString> Background{OwnInfo, "Background", DefaultBackground()};
  Setting<bool> SoundDisabled{OwnInfo, "SoundFXOFF", &options.SoundDisabled};
  Setting<std::int32_t> ComputerSpeed{OwnInfo, "ComputerFast", &options.ComputerSpeed};
  Setting<bool> SortDice{OwnInfo, "SortDice", &options.SortDice};
  Setting<bool> MarkScorers{OwnInfo, "MarkScorers", &options.MarkScorers};

  /// The colour of the text is kept in the file by its index in the list, 0 for one that isn't there.
  std::uint32_t TextColour() const { return textColour; }
  void setTextColour(std::uint32_t Colour);
  int TextColourIndex() const;
  void setTextColourIndex(int Index);
  /// 5000 or 10000; read from the file at every call, like the next.
  int ReadPlayToScore() const;
  void WritePlayToScore(int Value) const;
  /// 500 or 1000.
  int ReadBreakInScore() const;
  void WriteBreakInScore(int Value) const;
  /// Path of the wave file of an event, in the file system's bytes; empty for an unknown name.
  const std::string& GetSound(std::string_view p_sound_name) const { return options.GetSound(p_sound_name); }
  void SetSound(std::string_view p_sound_name, const std::string& p_sound_file);
  /// While the result lives, what is set is gathered; it goes into the file at once.
  WrittenTogether WriteTogether() const { return WrittenTogether(OwnInfo); }

  /// The default background: the picture "Satin.jpg" of the shipped ones.
  QString DefaultBackground() const;
  /// The wave file that an event has by default, in the temporary folder.
  std::string DefaultSound(std::string_view p_sound_name) const;

 private:
  void LoadSounds();
  void LoadAppearance();
};

}  // namespace blunko
