#include "table/DieBox.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>

#include "widgets/FocusRing.h"

namespace blunko {

namespace {

constexpr qreal RingRadius = 10;  // px
constexpr int Roughness = 9;      // of 255: how far a thread of the felt is lighter or darker than the felt
constexpr int ShadowDepth = 12;   // px, of the border's shadow on the felt

int ButtonNumber(Qt::MouseButton Button) {
  switch (Button) {
    case Qt::RightButton: return 2;
    case Qt::MiddleButton: return 4;
    default: return 1;
  }
}

/// Felt of the colour: every dot a little off it, to both sides alike.
QImage Threads(const QSize& Size, const QColor& Colour) {
  std::array<QRgb, 2 * Roughness + 1> Shades;
  for (int i = 0; i <= 2 * Roughness; ++i) {
    const auto Off = [i](int Part) { return std::clamp(Part + i - Roughness, 0, 255); };
    Shades[i] = qRgb(Off(Colour.red()), Off(Colour.green()), Off(Colour.blue()));
  }
  QImage Felt(Size, QImage::Format_RGB32);
  std::linear_congruential_engine<std::uint32_t, 1664525, 1013904223, 0> Chance;  // the same felt every time
  for (int y = 0; y < Felt.height(); ++y) {
    auto* Line = reinterpret_cast<QRgb*>(Felt.scanLine(y));
    std::uint32_t Before = Roughness;
    for (QRgb* const End = Line + Size.width(); Line < End; ++Line) {
      const std::uint32_t Fresh = (Chance() >> 16) * Shades.size() >> 16;
      *Line = Shades[(Fresh + Before) / 2];  // short threads, not dust
      Before = Fresh;
    }
  }
  return Felt;
}

}  // namespace

DieBox::DieBox(int Index, Bitmaps& Pictures, QWidget* Parent)
    : QAbstractButton(Parent), index(Index), bitmaps(Pictures) {
  setAttribute(Qt::WA_Hover);
  setFocusPolicy(Qt::TabFocus);
  hide();
  connect(this, &QAbstractButton::clicked, this, [this] { emit mouseUp(index, ButtonNumber(Qt::LeftButton)); });
}

void DieBox::setPicture(int Number) {
  if (picture == Number) return;
  picture = Number;
  setVisible(picture != 0);
  update();
}

void DieBox::setTakeable(bool Takeable) {
  if (takeable == Takeable) return;
  takeable = Takeable;
  setCursor(takeable ? Qt::PointingHandCursor : Qt::ArrowCursor);
  update();
}

void DieBox::setPale(bool Pale) {
  if (pale == Pale) return;
  pale = Pale;
  update();
}

void DieBox::paintEvent(QPaintEvent*) {
  if (picture == 0) return;
  QPainter Painter(this);
  const qreal Scale = devicePixelRatioF();
  const QPixmap& Die = bitmaps.Get(picture, Scale);
  Painter.setOpacity(pale ? 0.3 : 1);
  Painter.drawPixmap(QPoint(), bitmaps.ShadowOf(picture, Scale));
  Painter.drawPixmap(QPoint(), Die);
  if (takeable && underMouse()) {
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setPen(QPen(QColor(255, 255, 255, 230), 1.5));
    Painter.drawRoundedRect(QRectF(QPointF(), Die.deviceIndependentSize()).adjusted(0.75, 0.75, -0.75, -0.75),
                            RingRadius, RingRadius);
  }
  if (hasFocus()) DrawFocusRing(Painter, rect(), RingRadius);
}

void DieBox::mousePressEvent(QMouseEvent* Event) {
  QAbstractButton::mousePressEvent(Event);
  Event->accept();  // the tray below has clicks of its own
}

void DieBox::mouseReleaseEvent(QMouseEvent* Event) {
  QAbstractButton::mouseReleaseEvent(Event);
  Event->accept();
  if (Event->button() == Qt::LeftButton) return;
  if (hitButton(Event->position().toPoint())) emit mouseUp(index, ButtonNumber(Event->button()));
}

/// Left and Right go from die to die within the row.
void DieBox::keyPressEvent(QKeyEvent* Event) {
  const int Step = Event->key() == Qt::Key_Right ? 1 : Event->key() == Qt::Key_Left ? -1 : 0;
  if (Step == 0) return QAbstractButton::keyPressEvent(Event);
  const auto Row = parentWidget()->findChildren<DieBox*>(Qt::FindDirectChildrenOnly);
  auto Next = Row.indexOf(this) + Step;
  while (Next >= 0 && Next < Row.size() && Row[Next]->isHidden()) Next += Step;
  if (Next >= 0 && Next < Row.size()) Row[Next]->setFocus();
}

void DiceTray::setBackColor(const QColor& Colour) {
  if (backColor == Colour) return;
  backColor = Colour;
  felt = {};
  update();
}

void DiceTray::paintEvent(QPaintEvent*) {
  if (felt.isNull() || felt.devicePixelRatio() != devicePixelRatioF()) DrawFelt(devicePixelRatioF());
  QPainter(this).drawPixmap(QPoint(), felt);
}

/// The felt, the shadow that the border throws on it, mostly from above, and the border.
void DiceTray::DrawFelt(qreal Scale) {
  felt = QPixmap::fromImage(Threads((QSizeF(size()) * Scale).toSize(), backColor));
  felt.setDevicePixelRatio(Scale);
  QPainter Painter(&felt);
  const auto Shade = [&](const QRectF& Strip, QPointF Edge, QPointF Inner, int Alpha) {
    QLinearGradient Shadow(Edge, Inner);  // in parts of the strip
    Shadow.setCoordinateMode(QGradient::ObjectMode);
    Shadow.setColorAt(0, QColor(0, 0, 0, Alpha));
    Shadow.setColorAt(0.4, QColor(0, 0, 0, Alpha / 4));
    Shadow.setColorAt(1, Qt::transparent);
    Painter.fillRect(Strip, Shadow);
  };
  const qreal Width = width(), Height = height(), Depth = ShadowDepth, Shallow = Depth / 2;
  Shade({0, 0, Width, Depth}, {0, 0}, {0, 1}, 110);
  Shade({0, 0, Depth, Height}, {0, 0}, {1, 0}, 80);
  Shade({Width - Depth, 0, Depth, Height}, {1, 0}, {0, 0}, 50);
  Shade({0, Height - Shallow, Width, Shallow}, {0, 1}, {0, 0}, 40);

  const qreal Line = 1 / Scale, Top = hasTrayAbove ? 0 : Line;
  const QColor Border(0, 0, 0, 190);
  Painter.fillRect(QRectF(0, 0, Width, Top), Border);
  Painter.fillRect(QRectF(0, Height - Line, Width, Line), Border);
  for (const qreal Left : {0.0, Width - Line}) Painter.fillRect(QRectF(Left, Top, Line, Height - Line - Top), Border);
}

void DiceTray::mousePressEvent(QMouseEvent* Event) { Event->accept(); }

void DiceTray::mouseReleaseEvent(QMouseEvent* Event) {
  if (rect().contains(Event->position().toPoint())) emit mouseUp(ButtonNumber(Event->button()));
}

}  // namespace blunko
