#include "app/OpenInShell.h"

#include <QDesktopServices>
#include <QUrl>

namespace blunko {

void OpenInShell(const QString& Target) { QDesktopServices::openUrl(QUrl(Target)); }

}  // namespace blunko
