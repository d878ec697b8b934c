#pragma once

#include <QObject>
#include <QStringList>

class QUrl;

namespace blunko {

/// Hands a web or mail address to the system's default program; nobody looks at the result.
void OpenInShell(const QString& Target);

/// While it lives, programs that are opened so don't inherit these variables of the environment, which the game has set
/// for itself alone. They stay set: another thread may be reading the environment at any time.
class KeptVariables : public QObject {
  Q_OBJECT

 public:
  explicit KeptVariables(QStringList Variables);
  ~KeptVariables() override;

 private slots:
  void Open(const QUrl& Address);

 private:
  const QStringList kept;
};

}  // namespace blunko
