#pragma once

#include <QString>
#include <QWidget>

#include <functional>

#include "engine/Desktop.h"

namespace blunko {

/// The product's name: default title of the message boxes.
inline const QString ProductName = QStringLiteral("Tollmoor Blunko");

/// The real desktop. The screen changes only here: before each wait, and whenever events are delivered, the controls
/// are copied to the widgets.
class QtDesktop : public Desktop {
 public:
  std::function<void()> ShowControls = [] {};                      ///< copies the record of the controls to the widgets
  std::function<void(const QString& File, bool Always)> PlayFile;  ///< plays a wave file; unset, nothing sounds
  std::function<void(MousePointer Pointer)> ShowPointer;

  void Refresh() override { ShowControls(); }
  void Sleep(int Milliseconds) override;
  void PumpEvents() override;
  void WaitForEvents() override;
  void Beep() override;
  void PlaySoundFile(const std::string& File, bool Always) override;
  void MessageBox(const std::string& Text) override;
  bool AskYesNo(const std::string& Text, const std::string& Title) override;
  void SetMousePointer(MousePointer Pointer) override;

  /// Modal box with one line of text to type, `Preset` in it; the empty string on Cancel. Only letters that the game's
  /// files can carry can be typed.
  static QString InputBox(const QString& Prompt, const QString& Title, const QString& Preset);

  /// Multiplies every wait: 1, or 0 in tests that don't watch the clock.
  double WaitFactor = 1;
};

/// Runs a modal box of one or two buttons over the active window.
void ShowMessage(const QString& Text);
bool AskQuestion(const QString& Text, const QString& Title);

}  // namespace blunko
