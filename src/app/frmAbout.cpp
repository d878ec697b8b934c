#include "app/frmAbout.h"

#include <QGridLayout>
#include <QPainter>
#include <QVBoxLayout>

#include "Links.h"
#include "app/OpenInShell.h"
#include "app/Texts.h"
#include "app/frmCredits.h"
#include "widgets/Boxes.h"
#include "widgets/FormBuilder.h"
#include "widgets/Materials.h"

namespace blunko {

constexpr QSize DieSize(48, 48);  // px
const QColor ButtonColour(132, 186, 255);

void DieButton::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  icon().paint(&Painter, rect());
  if (hasFocus()) DrawFocusRing(Painter, rect(), 6);
}

frmAbout::frmAbout(const Folders& Where, const GameSettings& Options, Desktop& Screen, QWidget* Main)
    : PlacedDialog(Main, "frmAbout", "About Tollmoor Blunko"), settings(Options), desktop(Screen) {
  const QFont Plain = FontOf(Typeface::Verdana, 13), Small = FontOf(Typeface::Verdana, 9);
  const QString Die = Where.Shipped("Data") + "/Dice_Blue_5.gif";
  Picture1 = MakeDie("Picture1", Die);
  Label3 = MakeText(this, "Label3", "Tollmoor Games Presents", Plain);
  Label2 = MakeTitle(this, "Label2", ProductName, 29, Navy);
  Label_Version = MakeText(this, "Label_Version",
                           QStringLiteral("v%1.%2.%3").arg(VersionMajor).arg(VersionMinor).arg(VersionRevision), Plain);
  Label_Version->setAccessibleName(ProductName + ", version " + Label_Version->text().mid(1));
  Picture2 = MakeDie("Picture2", Die);
  Label1 = MakeText(this, "Label1", "Tollmoor Games", FontOf(Typeface::Verdana, 13, true));
  lblURL = MakeLink("lblURL", WebSite, WebSite);
  lblMail = MakeLink("lblMail", SupportMail, "mailto:" + SupportMail);
  lblDisclaimer = MakeText(this, "lblDisclaimer", LegalNotice[0], Small);
  Label4 = MakeText(this, "Label4", LegalNotice[1], Small);
  cmdOK = MakeButton(this, "cmdOK", "OK", &QDialog::accept);
  cmdCredits = MakeButton(this, "cmdCredits", "Credits", [this] { frmCredits(this).exec(); });
  for (ButtonPlus* Button : {cmdOK, cmdCredits}) Button->setBackColor(ButtonColour);
  SetFirst(cmdOK);
  connect(Picture1, &QAbstractButton::clicked, this, &frmAbout::Picture1_Click);
  connect(Picture2, &QAbstractButton::clicked, this, &frmAbout::Picture2_Click);
  auto* Head = new QGridLayout;
  Head->setHorizontalSpacing(18);
  Head->addWidget(Picture1, 0, 0, 3, 1, Qt::AlignCenter);
  Head->addWidget(Label3, 0, 1);
  Head->addWidget(Label2, 1, 1);
  Head->addWidget(Label_Version, 2, 1);
  Head->addWidget(Picture2, 0, 2, 3, 1, Qt::AlignCenter);
  for (ButtonPlus* Button : {cmdOK, cmdCredits}) Button->setMinimumWidth(110);
  Stack(this, {18, 14, 18, 14}, 4,
        {Head, 10, Label1, CentredRow({lblURL}), CentredRow({lblMail}), 10, lblDisclaimer, Label4, 12,
         CentredRow({cmdOK, cmdCredits}, 12)})
      ->setSizeConstraint(QLayout::SetFixedSize);
}

LinkLabel* frmAbout::MakeLink(const QString& Name, const QString& Shown, const QString& Target) {
  auto* Made = Make<LinkLabel>(this, Name, Shown);
  connect(Made, &QPushButton::clicked, this, [Target] { OpenInShell(Target); });
  return Made;
}

DieButton* frmAbout::MakeDie(const QString& Name, const QString& File) {
  auto* Made = Make<DieButton>(this, Name);
  Made->setIcon(QPixmap(File));  // sharp on large screens: it has twice the pixels
  Made->setIconSize(DieSize);
  Made->setAccessibleName(Name == "Picture1" ? "Left die" : "Right die");
  return Made;
}

void frmAbout::Picture1_Click() {
  desktop.PlaySoundFile(settings.GetSound("MultiDie"), false);
  for (const QString& Line : Joke) desktop.MessageBox(Line.toStdString());
}

void frmAbout::Picture2_Click() { desktop.PlaySoundFile(settings.GetSound("OneDie"), false); }

}  // namespace blunko
