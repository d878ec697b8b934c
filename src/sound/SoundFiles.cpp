#include "sound/SoundFiles.h"

#include <QFile>
#include <QFileInfo>

#include "sound/SoundEvents.h"

namespace blunko {

int ExtractResource(int Id, const QString& Kind, const QString& Path) {
  QFile Resource(QStringLiteral(":/sounds/%1.wav").arg(Id));
  if (Kind != QLatin1String("CUSTOM") || !Resource.open(QIODevice::ReadOnly)) return QFile::OpenError;
  const QByteArray Bytes = Resource.readAll();

  const QFileInfo There(Path);
  if (There.isSymLink() || (There.exists() && !There.isFile())) return QFile::OpenError;
  QFile File(Path);
  if (!File.open(QIODevice::ReadWrite | QIODevice::Unbuffered, QFile::ReadOwner | QFile::WriteOwner)) {
    return File.error();
  }
  if (File.read(Bytes.size()) == Bytes) return QFile::NoError;
  return File.seek(0) && File.write(Bytes) == Bytes.size() ? QFile::NoError : QFile::WriteError;
}

void ExtractSounds(const QString& Folder) {
  if (Folder.isEmpty()) return;  // the current one may hold files of the player's own
  for (const SoundEvent& Sound : SoundEvents) {
    ExtractResource(Sound.Resource, QStringLiteral("CUSTOM"), Folder + QLatin1String(Sound.File));
  }
  ExtractResource(OutSound.Resource, QStringLiteral("CUSTOM"), Folder + QLatin1String(OutSound.File));
}

}  // namespace blunko
