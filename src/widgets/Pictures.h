#pragma once

#include <QImage>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include <future>
#include <map>
#include <utility>

namespace blunko {

/// Bitmaps that the table knows by number besides the dice.
inline constexpr int DividerBitmap = 198;
inline constexpr int MarkerBitmap = 199;

/// Renders an SVG of the program's resources at its own logical size, or at `Size`, for a screen of the given scale.
/// A null picture when there is no such resource.
QPixmap RenderSvg(const QString& Resource, qreal Scale, QSize Size = {});

/// The numbered bitmaps, rendered once per scale. A number without a picture gives a null one.
class Bitmaps {
 public:
  const QPixmap& Get(int Number, qreal Scale);
  /// The soft shadow of what the bitmap shows, lit from above; `ShadowRoom` px wider and higher than it.
  const QPixmap& ShadowOf(int Number, qreal Scale);
  static constexpr int ShadowRoom = 6;

 private:
  std::map<std::pair<int, qreal>, QPixmap> rendered, shadows;
};

/// Shows an SVG of the resources stretched over the whole widget, sharp at every scale.
class SvgBox : public QWidget {
  Q_OBJECT

 public:
  explicit SvgBox(const QString& Resource, QWidget* Parent = nullptr);
  QSize sizeHint() const override { return natural; }

 protected:
  void paintEvent(QPaintEvent* Event) override;

 private:
  QString resource;
  QSize natural;
  QPixmap drawn;
};

/// Shows a picture file stretched over the whole widget; transparent without one. It is decoded on a thread of its own
/// until it is to be painted: at the start of the program that is the time in which the window comes up.
class StretchedPicture : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  /// Shows the file at `Path`; an empty path, or a file that is no picture, shows nothing.
  void Load(const QString& Path);
  bool IsEmpty() { return Drawn().isNull(); }

 protected:
  void paintEvent(QPaintEvent* Event) override;

 private:
  void Draw();
  const QPixmap& Drawn();

  QString path;
  std::future<QImage> decoding;
  QPixmap drawn;
};

}  // namespace blunko
