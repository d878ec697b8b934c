#include "widgets/Boxes.h"

#include <QApplication>
#include <QShortcut>
#include <QVBoxLayout>

#include "storage/NameRule.h"
#include "widgets/FormBuilder.h"
#include "widgets/NameValidator.h"
#include "widgets/Pictures.h"

namespace blunko {

namespace {

constexpr int WidestText = 360;       // px
constexpr int WidestLine = 240;       // px, of a text that isn't broken
constexpr int FrameButtons = 110;     // px, what a frame needs beside its title
constexpr int LeastInput = 260;       // px
constexpr QSize LeastButton(84, 32);  // px

QWidget* OwnerOfBox(QWidget* Table) {
  QWidget* const Dialog = QApplication::activeModalWidget();
  return Dialog != nullptr ? Dialog : Table;
}

/// The least width in which the text takes no more lines than in its handy one: no word is left alone in the last.
int BalancedWidth(const QLabel& Text) {
  const int Line = Text.fontMetrics().horizontalAdvance(Text.text());
  int Width = Line <= WidestLine ? Line + 1 : qMin(WidestText, Text.sizeHint().width());
  const int Height = Text.heightForWidth(Width);
  while (Width > 0 && Text.heightForWidth(Width - 1) <= Height) --Width;
  return Width;
}

}  // namespace

GameBox::GameBox(QWidget* Owner, Kind Which, const QString& Title, const QString& Text, Sign Bears)
    : PlacedDialog(Owner, QStringLiteral("GameBox"), Title, Cloth::Pearl,
                   Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
  lblText = MakeText(this, "lblText", Text, FontOf(Typeface::Verdana, 13), Qt::AlignLeft | Qt::AlignVCenter);
  lblText->setWordWrap(true);
  const int Width = BalancedWidth(*lblText);
  lblText->setFixedSize(Width, lblText->heightForWidth(Width));

  auto* Words = new QHBoxLayout;
  Words->setSpacing(16);
  if (Which != Kind::Input) Words->addStretch();
  if (Bears != Sign::None) Words->addWidget(MakeSign(Bears));
  Words->addWidget(lblText);
  Words->addStretch();

  auto* Column = Stack(this, {20, 18, 20, 14}, 16, {Words});
  if (Which == Kind::Input) Column->addWidget(MakeInput());
  Column->addLayout(MakeAnswers(Which));
  setMinimumWidth(LeastWidth());
  setFixedSize(sizeHint().expandedTo(minimumSize()));
}

QWidget* GameBox::MakeSign(Sign Bears) {
  const bool Asks = Bears == Sign::Question;
  auto* Made = Make<SvgBox>(this, "picSign", Asks ? ":/art/question.svg" : ":/art/warning.svg");
  Made->setFixedSize(Made->sizeHint());
  Made->setAccessibleName(Asks ? "Question" : "Warning");
  return Made;
}

QLineEdit* GameBox::MakeInput() {
  txtAnswer = Make<QLineEdit>(this, "txtAnswer");
  txtAnswer->setFont(lblText->font());
  txtAnswer->setMinimumWidth(LeastInput);
  txtAnswer->setMaxLength(LongestListName);
  txtAnswer->setValidator(new NameValidator(txtAnswer, LongestListName));
  lblText->setBuddy(txtAnswer);
  return txtAnswer;
}

QHBoxLayout* GameBox::MakeAnswers(Kind Which) {
  if (Which == Kind::Question) {
    cmdYes = Answer("cmdYes", QStringLiteral("&Yes"), Accepted);
    cmdNo = Answer("cmdNo", QStringLiteral("&No"), Rejected);
    for (const auto& [Letter, Button] : {std::pair(Qt::Key_Y, cmdYes), {Qt::Key_N, cmdNo}}) {
      connect(new QShortcut(Letter, this), &QShortcut::activated, Button, &QAbstractButton::click);
    }
    SetFirst(cmdNo);
    return CentredRow({cmdYes, cmdNo}, 12);
  }
  cmdOK = Answer("cmdOK", QStringLiteral("OK"), Accepted);
  SetFirst(cmdOK);
  if (Which == Kind::Message) return CentredRow({cmdOK});
  cmdCancel = Answer("cmdCancel", QStringLiteral("Cancel"), Rejected);
  txtAnswer->setFocus();
  return CentredRow({cmdOK, cmdCancel}, 12);
}

int GameBox::LeastWidth() const {
  QFont Letters = QApplication::font("QMdiSubWindowTitleBar");
  Letters.setBold(true);
  return QFontMetrics(Letters).horizontalAdvance(windowTitle()) + FrameButtons;
}

ButtonPlus* GameBox::Answer(const char* Name, const QString& Caption, int Result) {
  auto* Made = MakeButton(this, Name, Caption, [this, Result] { done(Result); });
  Made->setMinimumSize(LeastButton);
  return Made;
}

void ShowMessage(QWidget* Table, const QString& Text, Sign Bears) {
  GameBox(OwnerOfBox(Table), GameBox::Kind::Message, ProductName, Text, Bears).exec();
}

bool AskQuestion(QWidget* Table, const QString& Text, const QString& Title, Sign Bears) {
  return GameBox(OwnerOfBox(Table), GameBox::Kind::Question, Title, Text, Bears).exec() == QDialog::Accepted;
}

QString AskText(QWidget* Table, const QString& Prompt, const QString& Title, const QString& Preset) {
  GameBox Asks(OwnerOfBox(Table), GameBox::Kind::Input, Title, Prompt);
  Asks.txtAnswer->setText(HeldToNameRule(Preset));
  Asks.txtAnswer->selectAll();
  return Asks.exec() == QDialog::Accepted ? Asks.txtAnswer->text() : QString();
}

}  // namespace blunko
