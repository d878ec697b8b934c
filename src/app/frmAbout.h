#pragma once

#include <QDialog>
#include <QLabel>

#include "engine/Desktop.h"
#include "storage/Folders.h"
#include "storage/GameSettings.h"
#include "widgets/ButtonPlus.h"
#include "widgets/FitLabel.h"
#include "widgets/Pictures.h"

namespace blunko {

/// The picture of a die that can be clicked.
class DiePicture : public StretchedPicture {
  Q_OBJECT

 public:
  using StretchedPicture::StretchedPicture;

 signals:
  void clicked();

 protected:
  void mousePressEvent(QMouseEvent* Event) override;
  void mouseReleaseEvent(QMouseEvent* Event) override;
};

/// The about box: version, links, legal notice, and what the two dice do when they are clicked.
class frmAbout : public QDialog {
  Q_OBJECT

 public:
  frmAbout(const Folders& Where, const GameSettings& Options, Desktop& Screen, QWidget* Main);

  QLabel* Label3;
  QLabel* Label2;
  QLabel* Label1;
  QLabel* Label_Version;
  QLabel* lblURL;
  QLabel* lblMail;
  QLabel* lblDisclaimer;
  QLabel* Label4;
  DiePicture* Picture1;
  DiePicture* Picture2;
  ButtonPlus* cmdOK;
  ButtonPlus* cmdCredits;

 private:
  void Picture1_Click();
  void Picture2_Click();

  const GameSettings& settings;
  Desktop& desktop;
};

}  // namespace blunko
