#pragma once

#include <QColor>
#include <QImage>
#include <QPalette>
#include <QPixmap>

class QPainter;

namespace blunko {

// What all windows are made of, so that they look like one piece: pearl and navy satin, walnut, brass, felt and paper,
// in one light from the upper left.

inline const QColor FormBlue(2, 127, 255);      ///< the ground of the score pad and of the dialogs that celebrate
inline const QColor SeatBlue(160, 206, 252);    ///< the strips of the seats on it
inline const QColor Ivory(255, 246, 224);       ///< letters on navy
inline const QColor Paper(250, 244, 230);       ///< the ground of lists and fields
inline const QColor PaperInk(0, 0, 128);        ///< letters on it
inline const QColor PaperFaded(122, 107, 85);   ///< letters that can't be changed at the moment
inline const QColor PaperWorn(230, 220, 200);   ///< the groove of a scroll bar
inline const QColor FeltRed(166, 2, 2);         ///< the felt of a tray that isn't the table's
inline const QColor Pearl(244, 238, 226);       ///< pearl satin, where a contrast with it is reckoned
inline const QColor Navy(15, 34, 80);           ///< navy satin, where a contrast with it is reckoned
inline const QColor NavyMatt(90, 111, 158);     ///< the handle of a scroll bar
inline const QColor ButtonNavy(52, 72, 124);    ///< the body of buttons
inline const QColor HeroNavy(21, 44, 98);       ///< of those that a window is there for
inline const QColor Slate(128, 132, 142);       ///< what a body fades to when it is off
inline const QColor PearlShade(222, 208, 178);  ///< the folds of pearl satin
inline const QColor Brass(201, 163, 87);        ///< edges and hairlines
inline const QColor LoudRed(176, 0, 24);        ///< letters that cry out
inline const QColor Gilt(255, 217, 138);        ///< the line round what has the focus
inline const QColor Shade(10, 12, 26);          ///< what lies in the shadow
inline const QColor WalnutLit(176, 118, 74);    ///< the edge of the wood towards the light
inline const QColor Walnut(91, 52, 32);         ///< wood
inline const QColor WalnutDark(42, 22, 12);     ///< its edge away from the light

/// How light a colour is: 0 for black to 1 for white, as contrasts are reckoned.
double Luminance(const QColor& Colour);
/// How well two colours stand out from each other: 1 to 21.
double Contrast(const QColor& One, const QColor& Other);
/// Black or white, whichever stands out better from the colour.
QColor BestGround(const QColor& Ink);
/// The colour that lies `Part` (0 to 1) of the way from one to the other.
QColor Mixed(const QColor& From, const QColor& To, double Part);
/// The colour as a glaze of the given strength, 0 to 1.
QColor Thin(QColor Colour, double Strength);

/// The picture out of focus by the radius, in its own dots.
QImage Blurred(const QImage& Picture, double Radius);

/// A piece of navy satin, which may fill a window.
void DrawNavy(QPainter& Painter, const QRectF& Place);
/// What a window is lined with: letters on pearl are dark, on navy light.
enum class Cloth { Pearl, Navy };
/// The colours of what lies on it.
QPalette PaletteOn(Cloth Lining);
/// Draws the lining of a window.
void DrawLining(QPainter& Painter, const QRectF& Place, Cloth Lining);
/// A walnut frame with a brass line round an opening, `FrameWidth` px wide.
void DrawFrame(QPainter& Painter, const QRectF& Opening);
inline constexpr int FrameWidth = 8;
/// A plate let into the ground, with a fine brass edge.
void DrawPlate(QPainter& Painter, const QRectF& Place, qreal Radius, const QColor& Colour);
/// The wooden frame of the trays and its shadow: what lies on the upper 391 x 200 px of the table.
QPixmap TrayFrame(qreal Scale);
/// Felt under a rim that shades it. Its mean is the colour; black is lifted a little, or it would look like a hole.
QPixmap Felt(const QSize& Size, const QColor& Colour, qreal Scale);

/// How a button looks at the moment.
struct ButtonLook {
  QColor Base;  ///< the middle of its face
  bool Hero;    ///< one of those that the game is played with: in gold, and the ground's light in it
  bool On;      ///< else engraved
  bool Down, Focused;
};
/// Draws the body, and returns the colour for the caption.
QColor DrawButton(QPainter& Painter, const QRectF& Face, const ButtonLook& Look);

/// Width of the frame of whatever the keyboard acts on, in px.
inline constexpr int FocusRingWidth = 4;
/// Draws that frame just within `Outer`: a light line inside a dark one, so that one of the two stands out from
/// whatever it lies on.
void DrawFocusRing(QPainter& Painter, const QRectF& Outer, qreal Radius);
/// From now on such a frame lies around the toolkit's own lists, boxes and fields, too, while they have the focus, and
/// all windows have the colours of pearl, whatever those of the desktop are.
void RingStandardControls();

/// Style sheet for the toolkit's own lists, fields, boxes and bars in a window: paper on whatever ground.
QString PaperStyle();

}  // namespace blunko
