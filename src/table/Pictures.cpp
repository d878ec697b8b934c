#include "table/Pictures.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

namespace blunko {

namespace {

/// The widest picture that is kept in memory; larger ones are scaled down while they are read.
constexpr int LargestSide = 2400;  // px

}  // namespace

QPixmap RenderSvg(const QString& Resource, qreal Scale, QSize Size) {
  QSvgRenderer Svg(Resource);
  if (!Svg.isValid()) return {};
  if (Size.isEmpty()) Size = Svg.defaultSize();
  QPixmap Picture((QSizeF(Size) * Scale).toSize());
  Picture.fill(Qt::transparent);
  QPainter Painter(&Picture);
  Svg.render(&Painter);
  Painter.end();
  Picture.setDevicePixelRatio(Scale);
  return Picture;
}

const QPixmap& Bitmaps::Get(int Number, qreal Scale) {
  const auto [Entry, New] = rendered.try_emplace({Number, Scale});
  if (New && Number != 0) Entry->second = RenderSvg(QStringLiteral(":/dice/%1.svg").arg(Number), Scale);
  return Entry->second;
}

SvgBox::SvgBox(const QString& Resource, QWidget* Parent)
    : QWidget(Parent), resource(Resource), natural(QSvgRenderer(Resource).defaultSize()) {}

void SvgBox::paintEvent(QPaintEvent*) {
  const qreal Scale = devicePixelRatioF();
  if (drawn.isNull() || drawn.size() != (QSizeF(size()) * Scale).toSize()) drawn = RenderSvg(resource, Scale, size());
  QPainter(this).drawPixmap(0, 0, drawn);
}

void StretchedPicture::Load(const QString& Path) {
  picture = {};
  drawn = {};
  if (QFileInfo(Path).isFile()) {
    QImageReader Reader(Path);
    Reader.setAutoTransform(true);
    const QSize Size = Reader.size();
    if (Size.width() > LargestSide || Size.height() > LargestSide) {
      Reader.setScaledSize(Size.scaled(LargestSide, LargestSide, Qt::KeepAspectRatio));
    }
    picture = Reader.read();
  }
  update();
}

void StretchedPicture::paintEvent(QPaintEvent*) {
  if (picture.isNull()) return;
  const qreal Scale = devicePixelRatioF();
  const QSize Wanted = (QSizeF(size()) * Scale).toSize();
  if (drawn.size() != Wanted) {
    drawn = QPixmap::fromImage(picture.scaled(Wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    drawn.setDevicePixelRatio(Scale);
  }
  QPainter(this).drawPixmap(0, 0, drawn);
}

}  // namespace blunko
