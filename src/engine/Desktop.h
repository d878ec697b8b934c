#pragma once

#include <string>

namespace blunko {

enum class MousePointer { Normal = 0, Hourglass = 11 };

/// What the game asks of the platform: time, events, sound and message boxes.
class Desktop {
 public:
  virtual ~Desktop() = default;

  /// Brings the table's controls to the screen at once.
  virtual void Refresh() = 0;
  /// Waits `Milliseconds`; keys, clicks and the close box are held back meanwhile.
  virtual void Sleep(int Milliseconds) = 0;
  /// Delivers the waiting events and returns. Handlers can be entered from here.
  virtual void PumpEvents() = 0;
  /// Like PumpEvents, but sleeps until there is an event to deliver.
  virtual void WaitForEvents() = 0;
  /// The platform's simple warning sound.
  virtual void Beep() = 0;
  /// Starts a wave file and returns; silent on any failure. `Always`: also with sound effects switched off.
  virtual void PlaySoundFile(const std::string& File, bool Always) = 0;
  /// Modal box with an OK button under the default title.
  virtual void MessageBox(const std::string& Text) = 0;
  /// Modal box with Yes and No and, unless it is `Bare`, the question icon; true for Yes.
  virtual bool AskYesNo(const std::string& Text, const std::string& Title, bool Bare = false) = 0;
  virtual void SetMousePointer(MousePointer Pointer) = 0;
};

}  // namespace blunko
