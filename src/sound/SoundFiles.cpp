#include "sound/SoundFiles.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

#include "sound/SoundEvents.h"

namespace blunko {

namespace {

QString FileOfSound(int Id) {
  if (Id == OutSound.Resource) return QLatin1String(OutSound.File);
  const auto Found = std::find_if(SoundEvents.begin(), SoundEvents.end(),
                                  [Id](const SoundEvent& Sound) { return Sound.Resource == Id; });
  return Found == SoundEvents.end() ? QString() : QLatin1String(Found->File);
}

}  // namespace

int ExtractResource(int Id, const QString& Kind, const QString& Path) {
  const QString Name = FileOfSound(Id);
  QFile Resource(QStringLiteral(":/sounds/") + Name);
  if (Kind != QLatin1String("CUSTOM") || Name.isEmpty() || !Resource.open(QIODevice::ReadOnly)) return QFile::OpenError;
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
  for (const SoundEvent& Sound : SoundEvents) {
    ExtractResource(Sound.Resource, QStringLiteral("CUSTOM"), Folder + QLatin1String(Sound.File));
  }
  ExtractResource(OutSound.Resource, QStringLiteral("CUSTOM"), Folder + QLatin1String(OutSound.File));
}

}  // namespace blunko
