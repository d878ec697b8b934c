#include "table/KeyEvents.h"

#include <QKeyEvent>

namespace blunko {

// Places of keys on the board, as X11 and Wayland number them. Elsewhere the same numbers are other keys.
constexpr quint32 PlaceOf1 = 10, PlaceOf6 = 15, PlaceOfR = 27, PlaceOfP = 33, PlaceOfS = 39, PlaceOfL = 46;

std::int16_t KeyCodeOf(const QKeyEvent& Event, const QString& Platform) {
  const int Key = Event.key();
  const bool NumPad = Event.modifiers().testFlag(Qt::KeypadModifier);
  const bool Known = Platform == QLatin1String("xcb") || Platform.startsWith(QLatin1String("wayland"));
  const quint32 Place = Known ? Event.nativeScanCode() : 0;
  // The row above the letters counts by its place: not every keyboard has the digits there without Shift.
  if (Place >= PlaceOf1 && Place <= PlaceOf6) return static_cast<std::int16_t>(Digit1 + Place - PlaceOf1);
  if (Key >= Qt::Key_0 && Key <= Qt::Key_9)
    return static_cast<std::int16_t>((NumPad ? NumPad0 : Digit0) + (Key - Qt::Key_0));
  if (Key > Qt::Key_AsciiTilde && Key < Qt::Key_Escape) {  // letters of another script: those of the places count
    return Place == PlaceOfR   ? LetterR
           : Place == PlaceOfP ? LetterP
           : Place == PlaceOfS ? LetterS
           : Place == PlaceOfL ? LetterL
                               : 0;
  }
  switch (Key) {
    case Qt::Key_Backspace: return Backspace;
    case Qt::Key_Escape: return Escape;
    case Qt::Key_L: return LetterL;
    case Qt::Key_P: return LetterP;
    case Qt::Key_R: return LetterR;
    case Qt::Key_S: return LetterS;
    case Qt::Key_F2: return F2;
    case Qt::Key_Period:
    case Qt::Key_Comma: return NumPad ? NumPadDecimal : 0;  // the decimal point has two faces
    default: return 0;
  }
}

std::int16_t ShiftMaskOf(const QKeyEvent& Event) {
  const Qt::KeyboardModifiers Held = Event.modifiers();
  return static_cast<std::int16_t>((Held.testFlag(Qt::ShiftModifier) ? 1 : 0) |
                                   (Held.testFlag(Qt::ControlModifier) ? 2 : 0) |
                                   (Held.testFlag(Qt::AltModifier) ? 4 : 0));
}

}  // namespace blunko
