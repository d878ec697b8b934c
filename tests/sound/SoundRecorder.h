#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <QtEndian>

#include <cmath>
#include <numbers>

namespace blunko::test {

/// Waits until the condition holds; false after a limit.
template <typename Condition>
bool WaitFor(Condition&& Holds, int Limit = 5000) {
  QElapsedTimer Clock;
  Clock.start();
  while (!Holds()) {
    if (Clock.elapsed() > Limit) return false;
    QThread::msleep(2);
  }
  return true;
}

inline QString WriteFile(const QString& Path, const QByteArray& Bytes) {
  QFile File(Path);
  if (File.open(QIODevice::WriteOnly)) File.write(Bytes);
  return Path;
}
inline QByteArray ReadFile(const QString& Path) {
  QFile File(Path);
  return File.open(QIODevice::ReadOnly) ? File.readAll() : QByteArray();
}

/// From here on sound devices write to a file instead: 44100 Hz, two channels of 16 bits. A device that is opened anew
/// begins the file anew.
class SoundRecorder {
 public:
  /// A period of the device, 23 ms of sound, takes so many ms.
  explicit SoundRecorder(const char* Period = "23") {
    qputenv("SDL_AUDIODRIVER", "disk");
    qputenv("SDL_DISKAUDIODELAY", Period);
    qputenv("SDL_DISKAUDIOFILE", QFile::encodeName(Path()));
  }
  ~SoundRecorder() { qputenv("SDL_AUDIODRIVER", "dummy"); }

  QString Path() const { return NameInFolder("recorded.raw"); }
  QString NameInFolder(const char* Name) const { return Folder.filePath(QString::fromLatin1(Name)); }

  /// What sounded, without the silence around it.
  struct Heard {
    double Seconds = 0, Peak = 0;
  };
  Heard Hear() const {
    const QByteArray All = ReadFile(Path());
    Heard Found;
    qsizetype First = -1;
    for (qsizetype i = 0; i < All.size() / 4; ++i) {
      const double Value = std::abs(qFromLittleEndian<qint16>(All.constData() + 4 * i) / 32768.0);
      Found.Peak = std::max(Found.Peak, Value);
      if (Value < 0.02) continue;
      if (First < 0) First = i;
      Found.Seconds = static_cast<double>(i - First) / 44100;
    }
    return Found;
  }

 private:
  QTemporaryDir Folder;
};

/// A wave file with a tone.
struct Tone {
  int Rate = 44100, Width = 16, Channels = 1;
  double Frequency = 440, Seconds = 0.2, Peak = 0.4;

  QByteArray Samples() const {
    QByteArray Data;
    for (int i = 0; i < static_cast<int>(Rate * Seconds); ++i) {
      const double Value = Peak * std::sin(2 * std::numbers::pi * Frequency * i / Rate);
      char Bytes[4];
      const auto Whole = static_cast<qint32>(std::lround(Value * ((1U << (Width - 1)) - 1)));
      qToLittleEndian(Width == 8 ? Whole + 128 : Whole, Bytes);
      for (int Channel = 0; Channel < Channels; ++Channel) Data.append(Bytes, Width / 8);
    }
    return Data;
  }

  QByteArray File() const {
    const QByteArray Data = Samples();
    QByteArray All = "RIFF" + Number(36 + static_cast<quint32>(Data.size()), 4) + "WAVEfmt " + Number(16, 4);
    All += Number(1, 2) + Number(Channels, 2) + Number(Rate, 4) + Number(Rate * Channels * Width / 8, 4);
    All += Number(Channels * Width / 8, 2) + Number(Width, 2);
    return All + "data" + Number(static_cast<quint32>(Data.size()), 4) + Data;
  }

  static QByteArray Number(quint32 Value, int Size) {
    char Bytes[4];
    qToLittleEndian(Value, Bytes);
    return QByteArray(Bytes, Size);
  }
};

}  // namespace blunko::test
