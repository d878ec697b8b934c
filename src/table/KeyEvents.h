#pragma once

#include <QGuiApplication>

#include <cstdint>

#include "engine/KeyCodes.h"

class QKeyEvent;

namespace blunko {

/// Virtual key code of a key, as the table's key handler takes it; 0 for a key that is no command.
std::int16_t KeyCodeOf(const QKeyEvent& Event, const QString& Platform = QGuiApplication::platformName());

/// Mask of the modifier keys: 1 Shift, 2 Control, 4 Alt.
std::int16_t ShiftMaskOf(const QKeyEvent& Event);

}  // namespace blunko
