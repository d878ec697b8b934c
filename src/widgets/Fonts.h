#pragma once

#include <QFont>

namespace blunko {

/// The typefaces of the game, each with the families that stand in for it where it isn't installed.
enum class Typeface { Verdana, ComicSans, CourierNew, Serif };

/// A font of the size in px, so that it keeps its proportion to the forms.
QFont FontOf(Typeface Face, int Size, bool Bold = false);

/// The font, made smaller as far as the text needs to fit the width (px), down to the least that can be read.
QFont FittedFont(QFont Font, const QString& Text, double Width);

}  // namespace blunko
