#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

namespace blunko::test {

/// A folder of a test's own that goes away with it.
class Place {
 public:
  Place() {}  // by hand: or clang makes no constant member of it
  QString Path(const QString& Name = {}) const { return Name.isEmpty() ? folder.path() : folder.filePath(Name); }
  QString Put(const QString& Name, const QByteArray& Bytes) const {
    QFile File(Path(Name));
    if (!QDir().mkpath(QFileInfo(File).path()) || !File.open(QIODevice::WriteOnly) || File.write(Bytes) < 0) abort();
    return Path(Name);
  }
  /// A pipe that nobody serves, or a socket.
  QString Pipe(const QString& Name, mode_t Kind = S_IFIFO) const {
    if (mknod(QFile::encodeName(Path(Name)).constData(), Kind | 0600, 0) != 0) abort();
    return Path(Name);
  }
  QByteArray Get(const QString& Name) const {
    QFile File(Path(Name));
    return File.open(QIODevice::ReadOnly) ? File.readAll() : QByteArray("(no file)");
  }
  /// Everything in it, hidden or not.
  QStringList Names() const {
    return QDir(Path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
  }
  void Chmod(const QString& Name, mode_t Mode) const {
    if (chmod(QFile::encodeName(Path(Name)).constData(), Mode) != 0) abort();
  }
  QString Mkdir(const QString& Name, mode_t Mode) const {
    if (!QDir().mkpath(Path(Name))) abort();
    Chmod(Name, Mode);
    return Path(Name);
  }

 private:
  QTemporaryDir folder;
};

/// For a while the administrator, whom no mode keeps out, is nobody in particular.
struct Unprivileged {
  explicit Unprivileged(const Place& Where) {
    constexpr uid_t Id = 65534;
    const QByteArray Folder = QFile::encodeName(Where.Path());
    if (root && (chown(Folder.constData(), Id, Id) != 0 || setegid(Id) != 0 || setresuid(Id, Id, 0) != 0)) abort();
  }
  ~Unprivileged() {
    if (root && (setresuid(0, 0, 0) != 0 || setegid(0) != 0)) abort();
  }
  Q_DISABLE_COPY_MOVE(Unprivileged)
  const bool root = geteuid() == 0;
};

}  // namespace blunko::test
