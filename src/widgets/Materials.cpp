#include "widgets/Materials.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QColorSpace>
#include <QComboBox>
#include <QFocusFrame>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QRadioButton>

#include <cmath>
#include <numeric>

#include "widgets/Pictures.h"
#include "widgets/TickBox.h"

namespace blunko {

namespace {

constexpr qreal ButtonRadius = 6, RingLine = qreal{FocusRingWidth} / 2;  // px

/// A picture of the resources in the size in which it is shown.
QImage Read(const QString& Resource, const QSize& Size) {
  QImageReader Reader(Resource);
  Reader.setScaledSize(Size);
  return Reader.read();
}

/// A line of the width along the inside of the place, from its colour at the upper left to that at the lower right.
void DrawEdge(QPainter& Painter, const QRectF& Place, qreal Radius, qreal Width, const QColor& Lit,
              const QColor& Dark) {
  QLinearGradient Light(Place.topLeft(), Place.bottomRight());
  Light.setColorAt(0, Lit);
  Light.setColorAt(1, Dark);
  const qreal Half = Width / 2;
  Painter.setBrush(Qt::NoBrush);
  Painter.setPen(Lit == Dark ? QPen(Lit, Width) : QPen(Light, Width));
  Painter.drawRoundedRect(Place.adjusted(Half, Half, -Half, -Half), Radius - Half, Radius - Half);
  Painter.setPen(Qt::NoPen);
}

/// Puts the toolkit's frame mostly outside of the control, over its neighbours.
class RingStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  int pixelMetric(PixelMetric Metric, const QStyleOption* Option, const QWidget* Widget) const override {
    const bool Margin = Metric == PM_FocusFrameHMargin || Metric == PM_FocusFrameVMargin;
    return Margin ? FocusRingWidth - 1 : QProxyStyle::pixelMetric(Metric, Option, Widget);
  }
  int styleHint(StyleHint Hint, const QStyleOption* Option, const QWidget* Widget,
                QStyleHintReturn* Return) const override {
    return Hint == SH_FocusFrame_AboveWidget ? 1 : QProxyStyle::styleHint(Hint, Option, Widget, Return);
  }
  void drawControl(ControlElement Element, const QStyleOption* Option, QPainter* Painter,
                   const QWidget* Widget) const override {
    if (Element == CE_FocusFrame)
      DrawFocusRing(*Painter, Option->rect, FocusRingWidth);
    else
      QProxyStyle::drawControl(Element, Option, Painter, Widget);
  }
};

/// The game's own controls draw their ring themselves.
bool IsStandard(const QWidget* Control) {
  return qobject_cast<const QLabel*>(Control) != nullptr || qobject_cast<const QLineEdit*>(Control) != nullptr ||
         qobject_cast<const QComboBox*>(Control) != nullptr || qobject_cast<const QRadioButton*>(Control) != nullptr ||
         qobject_cast<const QAbstractScrollArea*>(Control) != nullptr ||
         (qobject_cast<const QCheckBox*>(Control) != nullptr && qobject_cast<const TickBox*>(Control) == nullptr);
}

}  // namespace

double Luminance(const QColor& Colour) {
  static const auto ToLight = QColorSpace(QColorSpace::SRgb).transformationToColorSpace(QColorSpace::SRgbLinear);
  const QColor Light = ToLight.map(Colour);
  return 0.2126 * Light.redF() + 0.7152 * Light.greenF() + 0.0722 * Light.blueF();
}

double Contrast(const QColor& One, const QColor& Other) {
  const double A = Luminance(One) + 0.05, B = Luminance(Other) + 0.05;
  return qMax(A, B) / qMin(A, B);
}

QColor BestGround(const QColor& Ink) {
  constexpr double Middle = 0.179;  // as far from black as from white
  return Luminance(Ink) > Middle ? Qt::black : Qt::white;
}

QColor Mixed(const QColor& From, const QColor& To, double Part) {
  const auto Between = [Part](int A, int B) { return qRound(A + (B - A) * Part); };
  return QColor(Between(From.red(), To.red()), Between(From.green(), To.green()), Between(From.blue(), To.blue()));
}

QColor Thin(QColor Colour, double Strength) {
  Colour.setAlphaF(static_cast<float>(Strength));
  return Colour;
}

QImage Blurred(const QImage& Picture, double Radius) {
  QImage Soft = Picture;
  for (int Pass = 0; Pass < 2; ++Pass) {  // smaller and large again is a blur
    const QSize Small = (QSizeF(Picture.size()) / Radius).toSize().expandedTo({1, 1});
    Soft = Soft.scaled(Small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
               .scaled(Picture.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  Soft.setDevicePixelRatio(Picture.devicePixelRatio());
  return Soft;
}

void DrawNavy(QPainter& Painter, const QRectF& Place) {
  const qreal Scale = Painter.device()->devicePixelRatioF();
  const QString Key = QStringLiteral("navy %1").arg(Scale);
  constexpr QSizeF Whole(393, 513);
  const QPixmap Cloth = Cached(
      Key, [&] { return QPixmap::fromImage(Read(QStringLiteral(":/materials/navy.jpg"), (Whole * Scale).toSize())); });
  const qreal Stretch = qMax(1.0, qMax(Place.width() / Whole.width(), Place.height() / Whole.height()));
  Painter.drawPixmap(Place, Cloth, QRectF(QPointF(), Place.size() / Stretch * Scale));
}

QPalette PaletteOn(Cloth Lining) {
  const bool Dark = Lining == Cloth::Navy;
  QPalette Colours(Paper, Dark ? Navy : Pearl);
  Colours.setColor(QPalette::WindowText, Dark ? Ivory : Shade);
  Colours.setColor(QPalette::Link, Dark ? Ivory : PaperInk);
  Colours.setColor(QPalette::Base, Paper);
  Colours.setColor(QPalette::Text, PaperInk);
  Colours.setColor(QPalette::Highlight, Navy);
  Colours.setColor(QPalette::HighlightedText, Ivory);
  return Colours;
}

void DrawLining(QPainter& Painter, const QRectF& Place, Cloth Lining) {
  if (Lining == Cloth::Navy) return DrawNavy(Painter, Place);
  const qreal Tall = Place.height();
  QLinearGradient Folds(Place.topLeft(), Place.topLeft() + QPointF(0.36, 1.1) * Tall);
  const std::pair<double, double> Heights[] = {{0, 0.6},    {0.2, -0.2}, {0.3, 0.5},    {0.44, 0.1}, {0.62, -0.35},
                                               {0.7, 0.55}, {0.8, 0},    {0.93, -0.45}, {1, 0.3}};
  for (const auto& [At, Height] : Heights) {
    Folds.setColorAt(At, Mixed(Pearl, Height > 0 ? Qt::white : PearlShade, qAbs(Height)));
  }
  Painter.fillRect(Place, Folds);
  QLinearGradient Light(Place.topLeft(), Place.bottomRight());
  Light.setColorAt(0, Thin(Qt::white, 0.45));
  Light.setColorAt(0.5, Thin(Qt::white, 0));
  Light.setColorAt(0.51, Thin(PearlShade, 0));
  Light.setColorAt(1, Thin(PearlShade, 0.5));
  Painter.fillRect(Place, Light);
  const QPixmap Net = RenderSvg(QStringLiteral(":/art/net.svg"), Painter.device()->devicePixelRatioF());
  const QSizeF Mesh = Net.deviceIndependentSize();
  for (qreal x = Place.left(); x < Place.right(); x += Mesh.width()) {
    for (qreal y = Place.top(); y < Place.bottom(); y += Mesh.height()) Painter.drawPixmap(QPointF(x, y), Net);
  }
}

void DrawFrame(QPainter& Painter, const QRectF& Opening) {
  const auto Grown = [&](qreal By) { return Opening.adjusted(-By, -By, By, By); };
  Painter.setRenderHint(QPainter::Antialiasing);
  Painter.setPen(Qt::NoPen);
  Painter.setBrush(Thin(Shade, 0.11));
  for (const qreal Reach : {3.0, 2.1, 1.4, 0.8, 0.4}) {
    Painter.drawRoundedRect(Grown(FrameWidth + Reach).translated(0, Reach), FrameWidth, FrameWidth);
  }
  Painter.setBrush(WalnutDark);
  Painter.drawRoundedRect(Grown(FrameWidth), 4, 4);
  for (int Depth = 1; Depth < FrameWidth - 1; ++Depth) {  // it slopes towards the opening
    const double Down = static_cast<double>(Depth) / FrameWidth;
    DrawEdge(Painter, Grown(FrameWidth - Depth), 4 - 2 * Down, 1.2, Mixed(WalnutLit, WalnutDark, Down),
             Mixed(WalnutDark, WalnutLit, 0.6 * Down));
  }
  DrawEdge(Painter, Grown(1), 1, 1, Gilt, Brass);
}

void DrawPlate(QPainter& Painter, const QRectF& Place, qreal Radius, const QColor& Colour) {
  QLinearGradient Light(Place.topLeft(), Place.bottomLeft());
  Light.setColorAt(0, Mixed(Colour, Shade, 0.7));
  Light.setColorAt(0.3, Mixed(Colour, Shade, 0.15));
  Light.setColorAt(1, Colour);
  Painter.setRenderHint(QPainter::Antialiasing);
  Painter.setPen(Qt::NoPen);
  Painter.setBrush(Light);
  Painter.drawRoundedRect(Place, Radius, Radius);
  DrawEdge(Painter, Place, Radius, 1, Thin(Brass, 0.75), Gilt);
}

QPixmap TrayFrame(qreal Scale) {
  constexpr QSizeF Table(391, 200);
  const QRectF Wood(QPointF(3, 18) * Scale, QSizeF(385, 141) * Scale);
  const qreal Corner = 6.5 * Scale;
  QPixmap Frame((Table * Scale).toSize());
  Frame.fill(Qt::transparent);
  QPainter Painter(&Frame);
  Painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  Painter.setClipRegion(QRegion(Frame.rect()) - (Wood - QMarginsF(Corner, Corner, Corner, Corner)).toRect());
  Painter.drawImage(Frame.rect(), QImage(QStringLiteral(":/materials/shadow.png")));
  Painter.setClipping(false);
  Painter.setPen(Qt::NoPen);
  Painter.setBrush(
      Read(QStringLiteral(":/materials/tray_%1.jpg").arg(Scale > 2 ? 4 : std::ceil(Scale)), Wood.size().toSize()));
  Painter.setBrushOrigin(Wood.topLeft());
  Painter.drawRoundedRect(Wood, Corner, Corner);
  Painter.end();
  Frame.setDevicePixelRatio(Scale);
  return Frame;
}

QPixmap Felt(const QSize& Size, const QColor& Colour, qreal Scale) {
  const QString Key =
      QStringLiteral("felt %1 %2 %3 %4").arg(Size.width()).arg(Size.height()).arg(Scale).arg(Colour.rgb());
  return Cached(Key, [&] {
    constexpr int LeastLight = 22;
    const bool Black = qMax(Colour.red(), qMax(Colour.green(), Colour.blue())) < LeastLight;
    const QColor Dye = Black ? QColor(LeastLight, LeastLight, LeastLight) : Colour;
    QImage Cloth = Read(QStringLiteral(":/materials/felt.jpg"), (QSizeF(Size) * Scale).toSize())
                       .convertToFormat(QImage::Format_Grayscale8);
    std::int64_t Sum = 0;
    for (int y = 0; y < Cloth.height(); ++y) {
      const uchar* const Line = Cloth.constScanLine(y);
      Sum = std::accumulate(Line, Line + Cloth.width(), Sum);
    }
    const double Mean = static_cast<double>(Sum) / Cloth.width() / Cloth.height();
    QList<QRgb> Dyed(256);  // of each grey
    for (int i = 0; i < 256; ++i) {
      const auto Part = [&](int Full) { return qMin(255, qRound(Full * i / Mean)); };
      Dyed[i] = qRgb(Part(Dye.red()), Part(Dye.green()), Part(Dye.blue()));
    }
    Cloth.reinterpretAsFormat(QImage::Format_Indexed8);
    Cloth.setColorTable(Dyed);
    Cloth.setDevicePixelRatio(Scale);
    return QPixmap::fromImage(std::move(Cloth));
  });
}

QColor DrawButton(QPainter& Painter, const QRectF& Face, const ButtonLook& Look) {
  Painter.setRenderHint(QPainter::Antialiasing);
  Painter.setPen(Qt::NoPen);
  const auto Fill = [&](const QRectF& Place, const QBrush& Brush) {
    Painter.setBrush(Brush);
    Painter.drawRoundedRect(Place, ButtonRadius, ButtonRadius);
  };
  QLinearGradient Light(Face.topLeft(), Face.bottomLeft());
  if (!Look.On) {  // sunk: its upper edge lies in the shade, the lower one catches the light
    const QColor Body = Mixed(Look.Base, Slate, 0.45);
    Light.setColorAt(0, Body.darker(135));
    Light.setColorAt(0.16, Body.darker(106));
    Light.setColorAt(1, Body.lighter(108));
    Fill(Face.translated(0, 1), Thin(Qt::white, 0.5));
    Fill(Face, Light);
    DrawEdge(Painter, Face, ButtonRadius, 1, Thin(Shade, 0.55), Thin(Shade, 0.15));
    return Mixed(Body, BestGround(Body) == QColor(Qt::white) ? Ivory : Shade, 0.72);
  }
  if (!Look.Down) {
    for (const double Reach : {2.2, 1.1}) {
      Fill(Face.adjusted(-Reach / 3, 0, Reach / 3, 0).translated(0.3, Reach), Thin(Shade, 0.24));
    }
  }
  const QColor Base = Look.Down ? Look.Base.darker(118) : Look.Base;
  const double Depth = Look.Hero ? 1 : 0.55;
  const auto Darker = [&](int Percent) { return Mixed(Base, Base.darker(Percent), Depth); };
  const QColor Top = Mixed(Base, Base.lighter(Look.Down ? 100 : 150), Depth);
  Light.setColorAt(0, Mixed(Top, Qt::white, 0.06));
  Light.setColorAt(0.13, Mixed(Base, Top, 0.5));
  Light.setColorAt(0.5, Base);
  Light.setColorAt(0.53, Darker(112));
  Light.setColorAt(1, Darker(140));
  Fill(Face, Light);
  if (Look.Hero) {
    QRadialGradient Glow(QPointF(0.5, 1.15), 0.62);  // in parts of the face
    Glow.setCoordinateMode(QGradient::ObjectMode);
    Glow.setColorAt(0, Thin(Brass, 0.62));
    Glow.setColorAt(1, Thin(Brass, 0));
    Fill(Face, Glow);
  }
  const qreal Edge = Look.Hero ? 2 : 1;
  DrawEdge(Painter, Face, ButtonRadius, Edge, Look.Hero ? Gilt : Mixed(Brass, Gilt, 0.3),
           Mixed(Brass, WalnutDark, 0.25));
  const QRectF Inner = Face.adjusted(Edge, Edge, -Edge, -Edge);
  DrawEdge(Painter, Inner, ButtonRadius - Edge, 1, Thin(Qt::white, Look.Down ? 0.05 : 0.3), Thin(Shade, 0.3));
  if (Look.Focused) DrawEdge(Painter, Face.adjusted(3, 3, -3, -3), ButtonRadius - 2, 2, Gilt, Gilt);
  return BestGround(Base) == QColor(Qt::white) ? Ivory : Shade;
}

void DrawFocusRing(QPainter& Painter, const QRectF& Outer, qreal Radius) {
  Painter.setRenderHint(QPainter::Antialiasing);
  for (const auto& [Colour, Depth] : {std::pair(Shade, 0.0), std::pair(Gilt, RingLine)}) {
    DrawEdge(Painter, Outer.adjusted(Depth, Depth, -Depth, -Depth), qMax(RingLine, Radius - Depth), RingLine, Colour,
             Colour);
  }
}

void RingStandardControls() {
  QApplication::setPalette(PaletteOn(Cloth::Pearl));
  auto* const Style = new RingStyle;
  Style->setParent(qApp);
  const auto Move = [Style, Ring = QPointer<QFocusFrame>()](QWidget*, QWidget* Now) mutable {
    delete Ring;
    if (Now == nullptr || Now->isWindow() || Now->window()->windowType() == Qt::Popup || !IsStandard(Now)) return;
    Ring = new QFocusFrame(Now->parentWidget());
    Ring->setStyle(Style);
    Ring->setWidget(Now);
  };
  QObject::connect(qApp, &QApplication::focusChanged, qApp, Move);
}

QString PaperStyle() {
  return QStringLiteral(
             "QComboBox, QLineEdit, QAbstractItemView { background: %1; color: %2; selection-background-color: %3;"
             "  selection-color: %4; border: 1px solid %5; border-radius: 3px; }"
             "QComboBox:disabled, QLineEdit:disabled { background: transparent; color: %6; }"
             "QComboBox { padding: 1px 4px; }"
             "QComboBox::drop-down { border: none; width: 16px; }"
             "QComboBox::down-arrow { image: url(:/materials/down.svg); width: 9px; height: 9px; }"
             "QAbstractItemView { outline: none; }"
             "QAbstractItemView::item { height: 16px; padding-left: 3px; }"
             "QTreeView::item { height: 14px; padding-left: 0; }"
             "QScrollBar:vertical { background: %7; width: 11px; margin: 0; border: none; }"
             "QScrollBar::handle:vertical { background: %8; border-radius: 4px; margin: 1px; min-height: 18px; }"
             "QScrollBar::add-line, QScrollBar::sub-line, QScrollBar::add-page, QScrollBar::sub-page {"
             "  background: none; height: 0; }"
             "QRadioButton::indicator, QCheckBox::indicator { width: 14px; height: 14px; }"
             "QRadioButton::indicator { image: url(:/materials/radio.svg); }"
             "QRadioButton::indicator:checked { image: url(:/materials/radio_on.svg); }"
             "QCheckBox::indicator { image: url(:/materials/check.svg); }"
             "QCheckBox::indicator:checked { image: url(:/materials/check_on.svg); }")
      .arg(Paper.name(), PaperInk.name(), Navy.lighter(160).name(), Ivory.name(), Brass.name(), PaperFaded.name(),
           PaperWorn.name(), NavyMatt.name());
}

}  // namespace blunko
