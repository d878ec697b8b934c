#include "app/StartQuestions.h"

#include "Links.h"
#include "app/OpenInShell.h"
#include "engine/Desktop.h"
#include "storage/GameSettings.h"
#include "util/TbkUtil.h"
#include "widgets/Boxes.h"

namespace blunko {

void SurveyHardware(GameSettings& Settings, Desktop& Screen, const TbkUtil& Util) {
  if (Settings.Scanned) return;
  if (Screen.AskYesNo("To better serve our customers we would like to record the hardware configuration of your "
                      "computer.  This information is reported anonymously and contains no personally identifying "
                      "information.\nMay we do this?",
                      ProductName.toStdString())) {
    Util.UtilSurveyHardware();
    Screen.MessageBox("Thank You");
  }
  Settings.Scanned = true;
}

bool CheckForUpdate(Desktop& Screen, const TbkUtil& Util) {
  if (!Screen.AskYesNo("Would you like to check for a new version of Tollmoor Blunko", ProductName.toStdString())) {
    return true;
  }
  switch (Util.UtilCheckVersion(VersionMajor, VersionMinor, VersionRevision)) {
    case TbkUtil::VersionError: Screen.MessageBox("An error has occurred. Please try again later."); break;
    case TbkUtil::UpToDate: Screen.MessageBox("You have the latest version."); break;
    case TbkUtil::NewerExists:
      if (Screen.AskYesNo("A newer version is available, would you like to go to the web site to download it?",
                          ProductName.toStdString())) {
        OpenInShell(DownloadPage);
        return false;
      }
      break;
  }
  return true;
}

}  // namespace blunko
