#pragma once

#include <QAbstractButton>
#include <QLabel>

#include "engine/Desktop.h"
#include "storage/Folders.h"
#include "storage/GameSettings.h"
#include "widgets/ButtonPlus.h"
#include "widgets/LinkLabel.h"
#include "widgets/PlacedDialog.h"

namespace blunko {

/// The picture of a die that can be pressed, by mouse or key.
class DieButton : public QAbstractButton {
  Q_OBJECT

 public:
  using QAbstractButton::QAbstractButton;

  QSize sizeHint() const override { return iconSize(); }

 protected:
  void paintEvent(QPaintEvent* Event) override;
};

/// The about box: version, links, legal notice, and what the two dice do when they are clicked.
class frmAbout : public PlacedDialog {
  Q_OBJECT

 public:
  frmAbout(const Folders& Where, const GameSettings& Options, Desktop& Screen, QWidget* Main);

  QLabel *Label1, *Label2, *Label3, *Label4, *Label_Version, *lblDisclaimer;
  LinkLabel *lblURL, *lblMail;
  DieButton *Picture1, *Picture2;
  ButtonPlus *cmdOK, *cmdCredits;

 private:
  LinkLabel* MakeLink(const QString& Name, const QString& Shown, const QString& Target);
  DieButton* MakeDie(const QString& Name, const QString& File);
  void Picture1_Click();
  void Picture2_Click();

  const GameSettings& settings;
  Desktop& desktop;
};

}  // namespace blunko
