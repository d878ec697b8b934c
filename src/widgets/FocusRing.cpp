#include "widgets/FocusRing.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QRadioButton>

#include "widgets/TickBox.h"

namespace blunko {

namespace {

constexpr qreal Line = FocusRingWidth / 2.0;
const QColor Light(255, 190, 64), Dark(16, 20, 44);  // 10:1, so at least 3:1 between one of them and any colour

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

void DrawFocusRing(QPainter& Painter, const QRectF& Outer, qreal Radius) {
  Painter.save();
  Painter.setRenderHint(QPainter::Antialiasing);
  Painter.setBrush(Qt::NoBrush);
  for (const auto& [Colour, Depth] : {std::pair(Dark, Line / 2), std::pair(Light, Line * 3 / 2)}) {
    Painter.setPen(QPen(Colour, Line));
    const qreal Round = qMax(0.0, Radius - Depth);
    Painter.drawRoundedRect(Outer.adjusted(Depth, Depth, -Depth, -Depth), Round, Round);
  }
  Painter.restore();
}

void RingStandardControls() {
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

}  // namespace blunko
