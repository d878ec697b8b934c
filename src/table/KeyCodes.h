#pragma once

#include <QKeyEvent>

#include <cstdint>

namespace blunko {

/// Virtual key code of a key, as the table's key handler takes it; 0 for a key that is no command.
inline std::int16_t KeyCodeOf(const QKeyEvent& Event) {
  const int Key = Event.key();
  const bool NumPad = Event.modifiers().testFlag(Qt::KeypadModifier);
  // The row above the letters counts by its place: not every keyboard has the digits there without Shift.
  constexpr quint32 FirstDigitKey = 10, LastDigitKey = 15;  // scan codes of 1 to 6, under X11 and Wayland alike
  const quint32 Place = Event.nativeScanCode();
  if (Place >= FirstDigitKey && Place <= LastDigitKey) return static_cast<std::int16_t>(49 + Place - FirstDigitKey);
  if (Key >= Qt::Key_0 && Key <= Qt::Key_9) return static_cast<std::int16_t>((NumPad ? 96 : 48) + (Key - Qt::Key_0));
  if (Key > Qt::Key_AsciiTilde && Key < Qt::Key_Escape) {  // letters of another script: those of the places count
    constexpr quint32 PlaceOfR = 27, PlaceOfP = 33;
    return Place == PlaceOfR ? 82 : Place == PlaceOfP ? 80 : 0;
  }
  switch (Key) {
    case Qt::Key_Backspace: return 8;
    case Qt::Key_Escape: return 27;
    case Qt::Key_P: return 80;
    case Qt::Key_R: return 82;
    case Qt::Key_F2: return 113;
    case Qt::Key_Period:
    case Qt::Key_Comma: return NumPad ? 110 : 0;  // the decimal point has two faces
    default: return 0;
  }
}

/// Mask of the modifier keys: 1 Shift, 2 Control, 4 Alt.
inline std::int16_t ShiftMaskOf(const QKeyEvent& Event) {
  const Qt::KeyboardModifiers Held = Event.modifiers();
  return static_cast<std::int16_t>((Held.testFlag(Qt::ShiftModifier) ? 1 : 0) |
                                   (Held.testFlag(Qt::ControlModifier) ? 2 : 0) |
                                   (Held.testFlag(Qt::AltModifier) ? 4 : 0));
}

}  // namespace blunko
