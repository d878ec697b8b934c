#include "app/OpenInShell.h"

#include <QDesktopServices>
#include <QProcess>
#include <QProcessEnvironment>
#include <QUrl>

namespace blunko {

const QString Schemes[] = {QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("mailto")};

void OpenInShell(const QString& Target) { QDesktopServices::openUrl(QUrl(Target)); }

KeptVariables::KeptVariables(QStringList Variables) : kept(std::move(Variables)) {
  if (kept.isEmpty()) return;
  for (const QString& Scheme : Schemes) QDesktopServices::setUrlHandler(Scheme, this, "Open");
}

KeptVariables::~KeptVariables() {
  for (const QString& Scheme : Schemes) QDesktopServices::unsetUrlHandler(Scheme);
}

void KeptVariables::Open(const QUrl& Address) {
  QProcessEnvironment Inherited = QProcessEnvironment::systemEnvironment();
  for (const QString& Variable : kept) Inherited.remove(Variable);
  QProcess Opener;
  Opener.setProgram(QStringLiteral("xdg-open"));
  Opener.setArguments({Address.toString(QUrl::FullyEncoded)});
  Opener.setProcessEnvironment(Inherited);
  Opener.startDetached();
}

}  // namespace blunko
