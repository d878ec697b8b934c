#include "app/frmCredits.h"

#include <QPainter>
#include <QShowEvent>
#include <QUrl>
#include <QVBoxLayout>

#include "Links.h"
#include "app/Texts.h"
#include "widgets/Boxes.h"
#include "widgets/FormBuilder.h"
#include "widgets/Materials.h"

namespace blunko {

constexpr int StepTime = 41;  // ms: more than 40 pass between two steps
constexpr QSize ScrollSize(320, 260);
const QColor TextColour(255, 255, 0);
constexpr int TextFlags = Qt::AlignHCenter | Qt::TextWordWrap;

ScrollBox::ScrollBox(QWidget* Parent) : QWidget(Parent) {
  setFont(FontOf(Typeface::ComicSans, 16));
  setAttribute(Qt::WA_OpaquePaintEvent);
}

int ScrollBox::TextHeight() const {
  if (Text.isEmpty()) return 0;
  return fontMetrics().boundingRect(QRect(0, 0, width(), 0), TextFlags, Text).height();
}

void ScrollBox::paintEvent(QPaintEvent*) {
  if (drawn.isNull() || drawn.devicePixelRatio() != devicePixelRatioF()) DrawText(devicePixelRatioF());
  QPainter Painter(this);
  Painter.fillRect(rect(), FormBlue);
  Painter.drawPixmap(0, Top, drawn);
}

void ScrollBox::DrawText(qreal Scale) {
  const QSize Size(width(), TextHeight());
  drawn = QPixmap((QSizeF(Size) * Scale).toSize());
  drawn.setDevicePixelRatio(Scale);
  drawn.fill(FormBlue);
  QPainter Painter(&drawn);
  Painter.setFont(font());
  for (const auto& [Colour, Below] : {std::pair(Thin(Shade, 0.6), 1), {TextColour, 0}}) {
    Painter.setPen(Colour);
    Painter.drawText(QRect({Below, Below}, Size), TextFlags, Text);
  }
}

frmCredits::frmCredits(QWidget* Owner) : PlacedDialog(Owner, "frmCredits", "Tollmoor Blunko Credits") {
  Label1 = MakeTitle(this, "Label1", "Credits & Stuff", 24, Navy);
  picScroll = Make<ScrollBox>(this, "picScroll");
  picScroll->setFixedSize(ScrollSize);
  picScroll->setAccessibleName(CreditsText());
  picScroll->Text = CreditsText();
  cmdOK = MakeButton(this, "cmdOK", "OK", &QDialog::accept);
  cmdOK->setMinimumWidth(110);
  SetFirst(cmdOK);

  framed = {picScroll};
  Stack(this, {16 + FrameWidth, 12, 16 + FrameWidth, 12}, 10 + FrameWidth, {Label1, picScroll, CentredRow({cmdOK})})
      ->setSizeConstraint(QLayout::SetFixedSize);

  steps.setTimerType(Qt::PreciseTimer);
  steps.setInterval(StepTime);
  connect(&steps, &QTimer::timeout, this, &frmCredits::Step);
}

QString frmCredits::CreditsText() { return Credits + QUrl(WebSite).host(); }

void frmCredits::showEvent(QShowEvent* Event) {
  PlacedDialog::showEvent(Event);
  // Once the dialog stands complete on the screen.
  if (!Event->spontaneous()) QTimer::singleShot(0, this, &frmCredits::ScrollCredits);
}

/// Starts the scrolling: the text stands just below the lower edge.
void frmCredits::ScrollCredits() {
  if (picScroll->TextHeight() == 0) {
    ShowMessage(this, QStringLiteral("Error scrolling text"), Sign::Warning);
    reject();
    return;
  }
  picScroll->Top = picScroll->height();
  picScroll->update();
  steps.start();
}

void frmCredits::Step() {
  const bool Gone = --picScroll->Top < -picScroll->TextHeight();  // at the upper edge
  if (Gone) picScroll->Top = picScroll->height();
  picScroll->update();
}

}  // namespace blunko
