#include "app/StartQuestions.h"

#include "Links.h"
#include "app/OpenInShell.h"
#include "engine/Desktop.h"
#include "storage/GameSettings.h"
#include "util/TbkUtil.h"
#include "widgets/Boxes.h"

namespace blunko {

void StartQuestions::SurveyHardware() {
  if (settings.Scanned) return;
  if (desktop.AskYesNo("To better serve our customers we would like to record the hardware configuration of your "
                       "computer.  This information is reported anonymously and contains no personally identifying "
                       "information.\nMay we do this?",
                       ProductName.toStdString())) {
    util.UtilSurveyHardware();
    desktop.MessageBox("Thank You");
  }
  settings.Scanned = true;
}

bool StartQuestions::CheckForUpdate() {
  if (!desktop.AskYesNo("Would you like to check for a new version of Tollmoor Blunko", ProductName.toStdString())) {
    return true;
  }
  switch (util.UtilCheckVersion(VersionMajor, VersionMinor, VersionRevision)) {
    case TbkUtil::VersionError: desktop.MessageBox("An error has occurred. Please try again later."); break;
    case TbkUtil::UpToDate: desktop.MessageBox("You have the latest version."); break;
    case TbkUtil::NewerExists:
      if (desktop.AskYesNo("A newer version is available, would you like to go to the web site to download it?",
                           ProductName.toStdString())) {
        OpenInShell(DownloadPage);
        return false;
      }
      break;
  }
  return true;
}

}  // namespace blunko
