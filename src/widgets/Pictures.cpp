#include "widgets/Pictures.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

#include <chrono>
#include <memory>

#include "widgets/JpegCheck.h"
#include "widgets/Materials.h"

namespace blunko {

namespace {

constexpr std::chrono::seconds LongestWait{2};  // a disk that hangs doesn't keep the window away

/// The picture is decoded in the size in which it is shown: that is quick, and spares the memory of an enormous one.
QImage ReadPicture(const QString& Path, const QSize& Size) {
  QByteArray Bytes = ReadWholeFile(Path, LargestJpeg).value_or(QByteArray());
  if (!IsModestJpeg(Bytes)) return {};
  QBuffer Buffer(&Bytes);
  QImageReader Reader(&Buffer, "jpg");
  Reader.setAutoTransform(true);
  const bool Turned = Reader.transformation() & QImageIOHandler::TransformationRotate90;  // comes after the scaling
  Reader.setScaledSize(Turned ? Size.transposed() : Size);
  return Reader.read();
}

}  // namespace

QPixmap RenderSvg(const QString& Resource, qreal Scale, QSize Size) {
  QSvgRenderer Svg(Resource);
  if (!Svg.isValid()) return {};
  if (Size.isEmpty()) Size = Svg.defaultSize();
  QPixmap Picture = EmptyPicture(Size, Scale);
  QPainter Painter(&Picture);
  Svg.render(&Painter, QRectF(QPointF(), Picture.deviceIndependentSize()));
  Painter.end();
  return Picture;
}

QPixmap EmptyPicture(const QSizeF& Size, qreal Scale) {
  QPixmap Picture((Size * Scale).toSize());
  Picture.setDevicePixelRatio(Scale);
  Picture.fill(Qt::transparent);
  return Picture;
}

const QPixmap& Bitmaps::Get(int Number, qreal Scale) {
  const auto [Entry, New] = rendered.try_emplace({Number, Scale});
  if (New) Entry->second = RenderSvg(QStringLiteral(":/dice/%1.svg").arg(Number), Scale);
  return Entry->second;
}

const QPixmap& Bitmaps::ShadowOf(int Number, qreal Scale) {
  const auto [Entry, New] = shadows.try_emplace({Number, Scale});
  if (!New) return Entry->second;
  const QPixmap& Picture = Get(Number, Scale);
  const QSizeF Size = Picture.deviceIndependentSize() + QSizeF(ShadowRoom, ShadowRoom);
  QPixmap& Both = Entry->second = EmptyPicture(Size, Scale);
  // A wide one, and one where the die touches the felt.
  for (const auto& [Place, Blur, Strength] : {std::tuple(QPointF(7, 8), 4.0, 0.66), {QPointF(2.4, 3.2), 1.6, 0.62}}) {
    QPixmap Shadow = EmptyPicture(Size, Scale);
    QPainter Painter(&Shadow);
    Painter.drawPixmap(Place, Picture);
    Painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    Painter.fillRect(QRectF(QPointF(), Size), Thin(Qt::black, Strength));
    QPainter(&Both).drawImage(QPoint(), Blurred(Shadow.toImage(), Blur * Scale));
  }
  return Both;
}

SvgBox::SvgBox(const QString& Resource, QWidget* Parent)
    : QWidget(Parent), resource(Resource), natural(QSvgRenderer(Resource).defaultSize()) {}

void SvgBox::paintEvent(QPaintEvent*) {
  const qreal Scale = devicePixelRatioF();
  if (drawn.size() != (QSizeF(size()) * Scale).toSize()) drawn = RenderSvg(resource, Scale, size());
  QPainter(this).drawPixmap(0, 0, drawn);
}

// Who clicks through the pictures doesn't wait for the one before, nor are they all decoded at once.
StretchedPicture::StretchedPicture(QWidget* Parent) : QWidget(Parent) { decoders.setMaxThreadCount(2); }

void StretchedPicture::Load(const QString& Path) {
  const std::pair Wanted(Path, StampOf(Path));
  if (std::exchange(file, Wanted) != Wanted) Decode();
}

void StretchedPicture::Decode() {
  wanted = size() * devicePixelRatioF();
  const auto Promise = std::make_shared<std::promise<QImage>>();
  decoding = Promise->get_future();
  decoders.clear();
  decoders.start([this, Promise, Path = file.first, Size = wanted] {
    Promise->set_value(ReadPicture(Path, Size));
    QMetaObject::invokeMethod(this, &StretchedPicture::Take, Qt::QueuedConnection);
  });
}

/// Shows what is wanted now, if it is decoded.
void StretchedPicture::Take() {
  if (!decoding.valid() || decoding.wait_for(std::chrono::seconds(0)) != std::future_status::ready) return;
  drawn = QPixmap::fromImage(decoding.get());
  update();
}

void StretchedPicture::showEvent(QShowEvent*) {
  if (decoding.valid()) decoding.wait_for(LongestWait);
  Take();
}

QColor StretchedPicture::LeastContrast(const QRect& Part, const QColor& Ink) const {
  constexpr int Block = 8;  // px, over which the eye takes a mean
  const qreal Dots = static_cast<qreal>(drawn.width()) / width();
  const QImage Blocks =
      drawn.copy(QRectF(QPointF(Part.topLeft()) * Dots, QSizeF(Part.size()) * Dots).toRect())
          .toImage()
          .scaled((Part.size() / Block).expandedTo({1, 1}), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QColor Least = Blocks.pixelColor(0, 0);
  for (int i = 1; i < Blocks.width() * Blocks.height(); ++i) {
    const QColor Here = Blocks.pixelColor(i % Blocks.width(), i / Blocks.width());
    if (Contrast(Here, Ink) < Contrast(Least, Ink)) Least = Here;
  }
  return Least;
}

QColor GroundUnder(const QWidget& Label, StretchedPicture* Picture, const QColor& Ink) {
  if (Picture == nullptr || Picture->IsEmpty()) return Label.palette().color(Label.backgroundRole());
  return Picture->LeastContrast(Label.geometry().translated(-Picture->pos()) & Picture->rect(), Ink);
}

void StretchedPicture::paintEvent(QPaintEvent*) {
  if (wanted.isValid() && wanted != size() * devicePixelRatioF()) Decode();
  QPainter(this).drawPixmap(rect(), drawn);
}

}  // namespace blunko
