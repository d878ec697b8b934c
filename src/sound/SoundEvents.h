#pragma once

#include <array>

namespace blunko {

/// A sound that travels inside the program, and the event of the game that it stands for until the player chooses
/// another file.
struct SoundEvent {
  int Resource;         ///< number of the sound inside the program
  const char* File;     ///< name of its file in the temporary folder
  const char* Name;     ///< of the event, as the rules call it
  const char* Caption;  ///< of the event, as the player reads it
};

/// The events whose sound can be chosen, in the order of their captions.
inline constexpr std::array<SoundEvent, 8> SoundEvents{{{106, "bust.wav", "Blunko", "Blunko"},
                                                        {108, "gameover.wav", "GameOver", "Game Over"},
                                                        {103, "moveit.wav", "MoveDie", "Move Dice"},
                                                        {104, "passem1.wav", "Passem1", "Pass Dice (w/ points)"},
                                                        {105, "passem2.wav", "Passem2", "Pass Dice (w/o points)"},
                                                        {102, "33d.wav", "MultiDie", "Roll Multiple Dice"},
                                                        {101, "11d.wav", "OneDie", "Roll One Die"},
                                                        {107, "undo.wav", "Undo", "Undo"}}};
/// The sound of going out belongs to no event.
inline constexpr SoundEvent OutSound{109, "overtop.wav", "", ""};

}  // namespace blunko
