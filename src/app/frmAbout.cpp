#include "app/frmAbout.h"

#include <QGridLayout>
#include <QMouseEvent>
#include <QVBoxLayout>

#include "Links.h"
#include "app/OpenInShell.h"
#include "app/Texts.h"
#include "app/frmCredits.h"
#include "widgets/Boxes.h"
#include "widgets/Fonts.h"

namespace blunko {

namespace {

constexpr int DieSide = 48;  // px: the picture has twice that, for large screens
const QColor ButtonColour(132, 186, 255);

}  // namespace

void DiePicture::mousePressEvent(QMouseEvent* Event) { Event->accept(); }

void DiePicture::mouseReleaseEvent(QMouseEvent* Event) {
  if (Event->button() == Qt::LeftButton && rect().contains(Event->position().toPoint())) emit clicked();
}

frmAbout::frmAbout(const Folders& Where, const GameSettings& Options, Desktop& Screen, QWidget* Main)
    : QDialog(Main), settings(Options), desktop(Screen) {
  setObjectName(QStringLiteral("frmAbout"));
  setWindowTitle(QStringLiteral("About Tollmoor Blunko"));

  const auto Text = [this](const char* Name, const QString& Caption, Typeface Face, double Points, bool Bold = false) {
    auto* Made = new QLabel(Caption, this);
    Made->setObjectName(QLatin1String(Name));
    Made->setFont(FontOf(Face, Points, Bold));
    Made->setAlignment(Qt::AlignCenter);
    return Made;
  };
  Label3 = Text("Label3", QStringLiteral("Tollmoor Games Presents"), Typeface::Verdana, 9.75);
  Label2 = Text("Label2", ProductName, Typeface::ComicSans, 21.75, true);
  Label1 = Text("Label1", QStringLiteral("Tollmoor Games"), Typeface::Verdana, 9.75, true);
  Label_Version =
      Text("Label_Version", QStringLiteral("v%1.%2.%3").arg(VersionMajor).arg(VersionMinor).arg(VersionRevision),
           Typeface::Verdana, 9.75);
  const auto Link = [&](const char* Name, const QString& Shown, const QString& Target) {
    const QString Html = QStringLiteral("<a href=\"%1\">%2</a>").arg(Target.toHtmlEscaped(), Shown.toHtmlEscaped());
    QLabel* Made = Text(Name, Html, Typeface::Verdana, 8.25);
    Made->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    Made->setAccessibleName(Shown);
    connect(Made, &QLabel::linkActivated, this, &OpenInShell);
    return Made;
  };
  lblURL = Link("lblURL", WebSite, WebSite);
  lblMail = Link("lblMail", SupportMail, QStringLiteral("mailto:") + SupportMail);
  lblDisclaimer = Text("lblDisclaimer", LegalNotice[0], Typeface::Verdana, 6.75);
  Label4 = Text("Label4", LegalNotice[1], Typeface::Verdana, 6.75);

  const auto Die = [&](const char* Name) {
    auto* Made = new DiePicture(this);
    Made->setObjectName(QLatin1String(Name));
    Made->setFixedSize(DieSide, DieSide);
    Made->Load(Where.Shipped(QStringLiteral("Data")) + QStringLiteral("/Dice_Blue_5.gif"));
    return Made;
  };
  Picture1 = Die("Picture1");
  Picture2 = Die("Picture2");
  connect(Picture1, &DiePicture::clicked, this, &frmAbout::Picture1_Click);
  connect(Picture2, &DiePicture::clicked, this, &frmAbout::Picture2_Click);

  const auto Button = [this](const char* Name, const QString& Caption) {
    auto* Made = new ButtonPlus(Caption, this);
    Made->setObjectName(QLatin1String(Name));
    Made->setMinimumWidth(110);
    Made->setBackColor(ButtonColour);
    Made->setAutoDefault(true);
    return Made;
  };
  cmdOK = Button("cmdOK", QStringLiteral("OK"));
  cmdCredits = Button("cmdCredits", QStringLiteral("Credits"));
  cmdOK->setDefault(true);
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
  connect(cmdCredits, &QPushButton::clicked, this, [this] { frmCredits(this).exec(); });
  FixButtonColours(*this);

  auto* Column = new QVBoxLayout(this);
  Column->setContentsMargins(18, 14, 18, 14);
  Column->setSpacing(4);
  auto* Head = new QGridLayout;
  Head->setHorizontalSpacing(18);
  Head->addWidget(Picture1, 0, 0, 3, 1, Qt::AlignCenter);
  Head->addWidget(Label3, 0, 1);
  Head->addWidget(Label2, 1, 1);
  Head->addWidget(Label_Version, 2, 1);
  Head->addWidget(Picture2, 0, 2, 3, 1, Qt::AlignCenter);
  Column->addLayout(Head);
  Column->addSpacing(10);
  for (QLabel* Line : {Label1, lblURL, lblMail}) Column->addWidget(Line);
  Column->addSpacing(10);
  for (QLabel* Line : {lblDisclaimer, Label4}) Column->addWidget(Line);
  Column->addSpacing(12);
  auto* Buttons = new QHBoxLayout;
  Buttons->setSpacing(12);
  Buttons->addStretch();
  Buttons->addWidget(cmdOK);
  Buttons->addWidget(cmdCredits);
  Buttons->addStretch();
  Column->addLayout(Buttons);
  Column->setSizeConstraint(QLayout::SetFixedSize);
  cmdOK->setFocus();
}

void frmAbout::Picture1_Click() {
  desktop.PlaySoundFile(settings.GetSound("MultiDie"), false);
  for (const QString& Line : Joke) desktop.MessageBox(Line.toStdString());
}

void frmAbout::Picture2_Click() { desktop.PlaySoundFile(settings.GetSound("OneDie"), false); }

}  // namespace blunko
