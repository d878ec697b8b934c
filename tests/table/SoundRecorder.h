#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <QtEndian>

#include <cmath>
#include <cstdint>
#include <numbers>
#include <vector>

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

/// From here on sound devices write to a file instead: 44100 Hz, two channels of 16 bits. A device that is opened anew
/// begins the file anew.
class SoundRecorder {
 public:
  SoundRecorder() {
    qputenv("SDL_AUDIODRIVER", "disk");
    qputenv("SDL_DISKAUDIOFILE", QFile::encodeName(Path()));
  }
  ~SoundRecorder() { qputenv("SDL_AUDIODRIVER", "dummy"); }

  QString Path() const { return Folder.filePath(QStringLiteral("recorded.raw")); }
  QString NameInFolder(const char* Name) const { return Folder.filePath(QString::fromLatin1(Name)); }

  QByteArray Bytes() const {
    QFile File(Path());
    return File.open(QIODevice::ReadOnly) ? File.readAll() : QByteArray();
  }

  /// What the left channel sounded like, without the silence around it.
  struct Heard {
    double Seconds = 0, Peak = 0, Frequency = 0;
  };
  Heard Hear() const {
    const QByteArray All = Bytes();
    std::vector<double> Left;
    for (qsizetype i = 0; i + 4 <= All.size(); i += 4) {
      Left.push_back(qFromLittleEndian<qint16>(All.constData() + i) / 32768.0);
    }
    Heard Found;
    std::size_t First = Left.size(), Last = 0, Crossings = 0;
    for (std::size_t i = 0; i < Left.size(); ++i) {
      Found.Peak = std::max(Found.Peak, std::abs(Left[i]));
      if (std::abs(Left[i]) < 0.02) continue;
      First = std::min(First, i);
      Last = i;
    }
    for (std::size_t i = First; i < Last; ++i) Crossings += (Left[i] < 0) != (Left[i + 1] < 0);
    if (Last > First) {
      Found.Seconds = static_cast<double>(Last - First) / 44100;
      Found.Frequency = static_cast<double>(Crossings) / 2 / Found.Seconds;
    }
    return Found;
  }

 private:
  QTemporaryDir Folder;
};

/// A wave file with a tone.
struct Tone {
  int Format = 1;  ///< 1 whole numbers, 3 floating point
  int Rate = 44100, Width = 16, Channels = 1;
  double Frequency = 440, Seconds = 0.2, Peak = 0.4;

  QByteArray Samples() const {
    QByteArray Data;
    for (int i = 0; i < static_cast<int>(Rate * Seconds); ++i) {
      const double Value = Peak * std::sin(2 * std::numbers::pi * Frequency * i / Rate);
      char Bytes[4];
      if (Format == 3) {
        qToLittleEndian(static_cast<float>(Value), Bytes);
      } else {
        const auto Whole = static_cast<qint32>(std::lround(Value * ((1U << (Width - 1)) - 1)));
        qToLittleEndian(Width == 8 ? Whole + 128 : Whole, Bytes);
      }
      for (int Channel = 0; Channel < Channels; ++Channel) Data.append(Bytes, Width / 8);
    }
    return Data;
  }

  QByteArray File() const {
    const QByteArray Data = Samples();
    QByteArray All = "RIFF" + Number(36 + static_cast<quint32>(Data.size()), 4) + "WAVEfmt " + Number(16, 4);
    All += Number(Format, 2) + Number(Channels, 2) + Number(Rate, 4) + Number(Rate * Channels * Width / 8, 4);
    All += Number(Channels * Width / 8, 2) + Number(Width, 2);
    return All + "data" + Number(static_cast<quint32>(Data.size()), 4) + Data;
  }

  static QByteArray Number(quint32 Value, int Size) {
    char Bytes[4];
    qToLittleEndian(Value, Bytes);
    return QByteArray(Bytes, Size);
  }
};

inline QString WriteFile(const QString& Path, const QByteArray& Bytes) {
  QFile File(Path);
  if (File.open(QIODevice::WriteOnly)) File.write(Bytes);
  return Path;
}

}  // namespace blunko::test
