#pragma once

#include <QImage>
#include <QPixmap>
#include <QPixmapCache>
#include <QString>
#include <QThreadPool>
#include <QWidget>

#include <future>
#include <map>
#include <utility>

#include "storage/FileAccess.h"

namespace blunko {

/// The divider among the numbered bitmaps; those before it are the dice.
inline constexpr int DividerBitmap = 198;
inline constexpr int MarkerBitmap = 199;
inline constexpr int LampBitmap = 200;  ///< burns round a mark

/// Renders an SVG of the program's resources at its own logical size, or at `Size`, for a screen of the given scale.
/// A null picture when there is no such resource.
QPixmap RenderSvg(const QString& Resource, qreal Scale, QSize Size = {});

/// A transparent picture to draw on, of a size in logical pixels.
QPixmap EmptyPicture(const QSizeF& Size, qreal Scale);

/// The picture of this name: drawn once, and again when the toolkit's cache has dropped it meanwhile.
template <typename Draw>
QPixmap Cached(const QString& Name, Draw Drawn) {
  QPixmap Picture;
  if (!QPixmapCache::find(Name, &Picture)) QPixmapCache::insert(Name, Picture = Drawn());
  return Picture;
}

/// The numbered bitmaps, rendered once per scale. A number without a picture gives a null one.
class Bitmaps {
 public:
  const QPixmap& Get(int Number, qreal Scale);
  /// The soft shadow of what the bitmap shows, thrown to the lower right; `ShadowRoom` px wider and higher than it.
  const QPixmap& ShadowOf(int Number, qreal Scale);
  static constexpr int ShadowRoom = 18;

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

/// Shows a JPEG file stretched over the whole widget; transparent without one. It is read, checked and decoded on a
/// thread of its own. Only a widget that comes up waits for it; else what was shown before stays until then.
class StretchedPicture : public QWidget {
  Q_OBJECT

 public:
  explicit StretchedPicture(QWidget* Parent = nullptr);

  /// Shows the file at `Path`, anew if it was replaced since. An empty path shows nothing, and so does a file that is
  /// no picture or costs too much.
  void Load(const QString& Path);
  bool IsEmpty() const { return drawn.isNull(); }
  /// Of what is drawn in a part of it, the colour that the ink stands out from least.
  QColor LeastContrast(const QRect& Part, const QColor& Ink) const;

 protected:
  void showEvent(QShowEvent* Event) override;
  void paintEvent(QPaintEvent* Event) override;

 private:
  void Decode();
  void Take();

  std::pair<QString, FileStamp> file;
  QSize wanted;  ///< physical pixels
  std::future<QImage> decoding;
  QPixmap drawn;
  QThreadPool decoders;  ///< the last member: the first to go, when it has come to its end
};

/// The colour under a label that the ink stands out from least: of the picture that it lies on, else of its palette.
QColor GroundUnder(const QWidget& Label, StretchedPicture* Picture, const QColor& Ink);

}  // namespace blunko
