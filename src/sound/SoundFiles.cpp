#include "sound/SoundFiles.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace blunko {

namespace {

const char* const Names[] = {"11d.wav",  "33d.wav",  "moveit.wav",   "passem1.wav", "passem2.wav",
                             "bust.wav", "undo.wav", "gameover.wav", "overtop.wav"};
static_assert(std::size(Names) == LastSound - FirstSound + 1);

}  // namespace

QString FileOfSound(int Id) {
  return Id >= FirstSound && Id <= LastSound ? QString::fromLatin1(Names[Id - FirstSound]) : QString();
}

int ExtractResource(int Id, const QString& Kind, const QString& Path) {
  const QString Name = FileOfSound(Id);
  QFile Resource(QStringLiteral(":/sounds/") + Name);
  if (Kind != QLatin1String("CUSTOM") || Name.isEmpty() || !Resource.open(QIODevice::ReadOnly)) return ENOENT;
  const QByteArray Bytes = Resource.readAll();

  const int Descriptor = open(QFile::encodeName(Path).constData(),
                              O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (Descriptor < 0) return errno;
  QFile File;
  if (!File.open(Descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) return EIO;
  struct stat Found {};
  if (fstat(Descriptor, &Found) != 0 || !S_ISREG(Found.st_mode)) return EINVAL;
  errno = 0;
  return File.write(Bytes) == Bytes.size() ? 0 : (errno != 0 ? errno : EIO);
}

}  // namespace blunko
