#pragma once

#include <QFont>

namespace blunko {

/// The typefaces of the game, each with the families that stand in for it where it isn't installed.
enum class Typeface { Verdana, ComicSans, CourierNew, Serif };

/// A font of the given size in points, taken as 20 twips each so that it keeps its proportion to the forms.
QFont FontOf(Typeface Face, double Points, bool Bold = false);

/// The font, made smaller as far as the text needs to fit the width (px), down to the least that can be read.
QFont FittedFont(QFont Font, const QString& Text, double Width);

}  // namespace blunko
