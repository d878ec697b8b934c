#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QString>

class QPainter;

namespace blunko {

/// A line of text on a picture. It shrinks and narrows rather than being cut, and stands on a soft halo, light or dark
/// by its own colour, so that it has a contrast of 4.5:1 on every ground. The halo is drawn once and kept.
class HaloText {
 public:
  /// How far the halo reaches beyond the letters, in px.
  static constexpr int Reach = 5;

  /// Draws the text within `Room`, where the halo needs no room of its own.
  void Draw(QPainter& Painter, const QRectF& Room, Qt::Alignment Side, const QString& Text, const QFont& Font,
            const QColor& Ink);

 private:
  struct Looks {
    QString Text;
    QFont Font;
    QRgb Ground = 0;
    qreal Stretch = 1, Scale = 1;
    bool operator==(const Looks&) const = default;
  };
  void Render();

  Looks drawn;
  QPixmap halo;
};

}  // namespace blunko
