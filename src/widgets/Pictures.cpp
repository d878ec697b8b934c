#include "widgets/Pictures.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

namespace blunko {

namespace {

constexpr int LargestPicture = 64;  // MB, of one that is decoded as small as it can be, but isn't yet stretched

/// Set before any thread reads a picture.
[[maybe_unused]] const bool IsLimited = (QImageReader::setAllocationLimit(LargestPicture), true);

/// The picture is decoded in the size in which it is shown: that is quick, and spares the memory of an enormous one.
QImage Decode(const QString& Path, const QSize& Wanted) {
  if (!QFileInfo(Path).isFile()) return {};
  QImageReader Reader(Path);
  Reader.setAutoTransform(true);
  const bool Turned = Reader.transformation() & QImageIOHandler::TransformationRotate90;  // comes after the scaling
  Reader.setScaledSize(Turned ? Wanted.transposed() : Wanted);
  return Reader.read();
}

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

const QPixmap& Bitmaps::ShadowOf(int Number, qreal Scale) {
  const auto [Entry, New] = shadows.try_emplace({Number, Scale});
  if (!New) return Entry->second;
  constexpr int Blur = 3;  // px
  const QPixmap& Picture = Get(Number, Scale);
  const QSizeF Size = Picture.deviceIndependentSize() + QSizeF(ShadowRoom, ShadowRoom);
  QImage Shadow((Size * Scale).toSize(), QImage::Format_ARGB32_Premultiplied);
  Shadow.setDevicePixelRatio(Scale);
  Shadow.fill(Qt::transparent);
  QPainter Painter(&Shadow);
  Painter.drawPixmap(QPointF(1.5, 2.5), Picture);
  Painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  Painter.fillRect(QRectF(QPointF(), Size), QColor(0, 0, 0, 130));
  Painter.end();
  const QSize Full = Shadow.size();
  for (int Pass = 0; Pass < 2; ++Pass) {  // smaller and large again is a blur
    Shadow = Shadow.scaled(Full / (Blur * Scale), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                 .scaled(Full, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  Entry->second = QPixmap::fromImage(Shadow);
  Entry->second.setDevicePixelRatio(Scale);
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
  path = Path;
  Draw();
  update();
}

void StretchedPicture::Draw() {
  drawn = {};
  decoding = {};
  if (!path.isEmpty()) decoding = std::async(&Decode, path, size() * devicePixelRatioF());
}

const QPixmap& StretchedPicture::Drawn() {
  if (decoding.valid()) {
    drawn = QPixmap::fromImage(decoding.get());
    drawn.setDevicePixelRatio(devicePixelRatioF());
  }
  return drawn;
}

void StretchedPicture::paintEvent(QPaintEvent*) {
  if (!IsEmpty() && drawn.devicePixelRatio() != devicePixelRatioF()) Draw();
  if (!IsEmpty()) QPainter(this).drawPixmap(rect(), drawn);
}

}  // namespace blunko
