#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QString>

class QPainter;

namespace blunko {

class StretchedPicture;

/// A line of text on a ground that shows through. It shrinks and narrows rather than being cut. Where the ground is too
/// much like the letters they get a shadow, or a soft light, of as much strength as a contrast of 4.5:1 needs; on most
/// grounds none.
class Letters {
 public:
  /// How far shadow and light reach beyond the letters, in px.
  static constexpr int Reach = 5;

  /// Draws the text within `Room`, where edges need no room of their own. `Ground`: what it stands out from least.
  void Draw(QPainter& Painter, const QRectF& Room, Qt::Alignment Side, const QString& Text, const QFont& Font,
            const QColor& Ink, const QColor& Ground);

 private:
  struct Looks {
    QString Text;
    QFont Font;
    QRgb Edge = 0;
    qreal Stretch = 1, Scale = 1;
    bool operator==(const Looks&) const = default;
  };
  void Render();

  Looks drawn;
  QPixmap edge;
};

}  // namespace blunko
