#include <QDeadlineTimer>
#include <QThread>
#include <QtCore/qtestsupport_core.h>
#include <QtEndian>

#include <cmath>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <optional>
#include <sys/ioctl.h>

#include "sound/SoundEvents.h"
#include "sound/SoundFiles.h"
#include "sound/Sounds.h"
#include "tests/support/Place.h"

namespace blunko::test {

using Milliseconds = Sounds::Milliseconds;

/// From here on sound devices write to a file instead: 44100 Hz, two channels of 16 bits. A device that is opened anew
/// begins the file anew.
struct SoundRecorder : Place {
  const QString recorded = Path("recorded.raw");

  /// A period of the device, 23 ms of sound, takes so many ms.
  explicit SoundRecorder(const char* Period = "23") {
    qputenv("SDL_AUDIODRIVER", "disk");
    qputenv("SDL_DISKAUDIODELAY", Period);
    qputenv("SDL_DISKAUDIOFILE", QFile::encodeName(recorded));
    for (const char* Wish : {"SDL_AUDIO_FREQUENCY", "SDL_AUDIO_CHANNELS"}) qputenv(Wish, "1");  // of other programs
    qputenv("SDL_AUDIO_FORMAT", "U8");
  }
  ~SoundRecorder() { qputenv("SDL_AUDIODRIVER", "dummy"); }
  Q_DISABLE_COPY_MOVE(SoundRecorder)

  /// How long the left channel stood at about this level, a share of the loudest.
  double Seconds(double Level = 0.4, double Beside = 0.02) const {
    const QByteArray All = Get("recorded.raw");
    int Samples = 0;
    for (qsizetype i = 0; i + 4 <= All.size(); i += 4) {
      Samples += std::abs(std::abs(qFromLittleEndian<qint16>(All.constData() + i) / 32768.0) - Level) < Beside;
    }
    return Samples / 44100.0;
  }
  /// An open device writes silence, too.
  bool IsOpen() const {
    const qint64 Size = QFile(recorded).size();
    QThread::msleep(200);
    return QFile(recorded).size() != Size;
  }
};

static QByteArray Number(quint32 Value, int Size) {
  const quint32 Bytes = qToLittleEndian(Value);
  return QByteArray(reinterpret_cast<const char*>(&Bytes), Size);
}

/// A wave file that stands at one level: the rate, the duration and the form of the samples can be heard from it.
struct Wave {
  int Rate = 44100, Width = 16, Channels = 1;
  double Seconds = 0.2, Level = 0.4;

  QByteArray File() const {
    const auto Whole = static_cast<quint32>(std::lround(Level * ((1U << (Width - 1)) - 1))) + (Width == 8 ? 128 : 0);
    const QByteArray Data = Number(Whole, Width / 8).repeated(static_cast<int>(Rate * Seconds) * Channels);
    return "RIFF" + Number(36 + static_cast<quint32>(Data.size()), 4) + "WAVEfmt " + Number(16, 4) + Number(1, 2) +
           Number(Channels, 2) + Number(Rate, 4) + Number(Rate * Channels * Width / 8, 4) +
           Number(Channels * Width / 8, 2) + Number(Width, 2) + "data" + Number(Data.size(), 4) + Data;
  }
};

static void PlayToEnd(Sounds& Player, const QString& File) {
  Player.Play(File);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Player.IsPlaying(); }, 20'000)) << qPrintable(File);
}

TEST(Sounds, ASoundIsNeverCutTheNewRequestIsDroppedAndTheDeviceIsGivenBack) {
  const SoundRecorder Recorder;
  const QString Long = Recorder.Put("long.wav", Wave{.Channels = 2, .Seconds = 2.4}.File());
  const QString High = Recorder.Put("high.wav", Wave{.Level = 0.8}.File());
  Sounds Player(Milliseconds(500));
  Player.Play(Long);
  Player.Play(High);  // while the device opens
  ASSERT_TRUE(QTest::qWaitFor([&] { return Recorder.Seconds() > 0.8; }, 20'000));
  PlayToEnd(Player, High);  // in the midst of it
  EXPECT_NEAR(Recorder.Seconds(), 2.4, 0.03);
  EXPECT_EQ(Recorder.Seconds(0.8), 0);
  PlayToEnd(Player, High);  // the next one sounds again, on the same device
  EXPECT_TRUE(Recorder.IsOpen());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Recorder.IsOpen(); }));
  EXPECT_NEAR(Recorder.Seconds(), 2.4, 0.5 / 44100) << "to the sample";
  EXPECT_NEAR(Recorder.Seconds(0.8), 0.2, 0.001);
}

TEST(Sounds, UsualWavesSoundAlikeAndWhatIsNoneGivesWayToTheNext) {
  const SoundRecorder Recorder("1");
  const QString High = Recorder.Put("high.wav", Wave{.Level = 0.8}.File());
  const QByteArray Plain = Wave{}.File();
  const auto With = [&Plain](qsizetype Place, quint32 Value, int Size) {
    return QByteArray(Plain).replace(Place, Size, Number(Value, Size));
  };
  const std::pair<QString, double> Rows[] = {
      {Recorder.Put("8 bits, 11025 Hz", Wave{.Rate = 11025, .Width = 8}.File()), 0.2},
      {Recorder.Put("24 bits, 96000 Hz, stereo", Wave{.Rate = 96000, .Width = 24, .Channels = 2}.File()), 0.2},
      {Recorder.Put("a list before the samples", Wave{}.File().insert(36, "LIST" + Number(4, 4) + "INFO")), 0.2},
      {Recorder.Put("long", Wave{.Rate = 8000, .Width = 8, .Seconds = 22}.File()), 22},
      {Recorder.Put("an hour", Wave{.Rate = 1000, .Width = 8, .Seconds = 3600}.File()), 0},
      {Recorder.Put("empty", ""), 0},
      {Recorder.Put("cut within the format", Plain.left(30)), 0},
      {Recorder.Put("65535 channels", With(22, 0xFFFF, 2)), 0},
      {Recorder.Put("four billion samples a second", With(24, 0xFFFFFFFF, 4)), 0},
      {Recorder.Pipe("pipe"), 0},
      {Recorder.Put("32 MiB", Plain.leftJustified(32 << 20, '.')), 0.2},
      {Recorder.Put("a byte more", Plain.leftJustified((32 << 20) + 1, '.')), 0}};
  for (const auto& [File, Seconds] : Rows) {
    Sounds Player(Milliseconds(60'000));
    Player.Play(File);
    PlayToEnd(Player, High);  // asked for at once
    PlayToEnd(Player, High);  // and when all is still
    EXPECT_NEAR(Recorder.Seconds(), Seconds, 0.02) << qPrintable(File);
    const double Heard = (Seconds > 0 ? Seconds : 0.2) + 0.2;
    EXPECT_NEAR(Recorder.Seconds(0.5, 0.49), Heard, 0.02) << qPrintable(File) << ": all that isn't silence";
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Recorder.IsOpen(); })) << "the device closes with its player";
}

TEST(Sounds, WithoutADeviceNothingWaitsAndLaterItIsTriedAgainAsIsOneThatIsGone) {
  const SoundRecorder Recorder("1");
  const QString File = Recorder.Put("wave.wav", Wave{}.File());
  qputenv("ALSA_CONFIG_PATH", "/dev/null");  // knows no device
  Sounds Player(Milliseconds(2000), Milliseconds(2000));
  const auto Plays = [&] {
    Player.Play(File);
    return Player.IsPlaying();
  };
  for (const char* Driver : {"none such", "alsa"}) {
    qputenv("SDL_AUDIODRIVER", Driver);
    testing::internal::CaptureStderr();
    PlayToEnd(Player, File);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_FALSE(Plays()) << "too early";
    QThread::msleep(2100);
  }
  qputenv("SDL_AUDIODRIVER", "disk");
  QFile::link("/dev/full", Recorder.recorded);  // a device that dies
  EXPECT_TRUE(Plays());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Player.IsPlaying(); }));
  QFile::remove(Recorder.recorded);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Plays(), Recorder.Seconds() > 0.19; }));
}

TEST(Sounds, AHangingDeviceHoldsUpNeitherTheGameNorItsEnd) {
  const SoundRecorder Recorder("1");
  const QString File = Recorder.Put("wave.wav", Wave{.Seconds = 2}.File());
  const int Reader = open(QFile::encodeName(Recorder.Pipe("recorded.raw")).constData(), O_RDWR);
  std::optional<Sounds> Player(std::in_place);
  Player->Play(File);
  int Written = 0;  // bytes, that nobody reads
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return ioctl(Reader, FIONREAD, &Written), Written == fcntl(Reader, F_GETPIPE_SZ); }));
  const QDeadlineTimer Limit(3000);  // ms, for a very busy machine: a call that waits does so for ever
  Player->Play(File);
  Player.reset();
  EXPECT_FALSE(Limit.hasExpired());
  EXPECT_GT(read(Reader, QByteArray(Written, ' ').data(), Written), 0);  // lets the thread come to its end
}

TEST(Extraction, WritesOverTheStartOfPlainFilesOnly) {
  const Place Folder;
  const QString Longer = Folder.Put("longer", QByteArray(100'000, 'x')), Target = Folder.Put("target", "mine");
  ASSERT_EQ(ExtractResource(103, "CUSTOM", Longer), 0);
  const QByteArray After = Folder.Get("longer");
  EXPECT_TRUE(After.size() == 100'000 && After.startsWith("RIFF") && After.endsWith('x'));
  ASSERT_TRUE(QFile::link(Target, Folder.Path("planted")));
  for (const QString& Path :
       {Folder.Path("planted"), Folder.Pipe("pipe"), Folder.Path(), Folder.Path("no/such/folder")}) {
    EXPECT_NE(ExtractResource(103, "CUSTOM", Path), 0) << qPrintable(Path);
  }
  EXPECT_NE(ExtractResource(110, "CUSTOM", Folder.Path("fresh")), 0);
  EXPECT_NE(ExtractResource(103, "BITMAP", Folder.Path("fresh")), 0);
  QDir::setCurrent(Folder.Path());
  ExtractSounds({});
  EXPECT_EQ(Folder.Names().size(), 4) << "without a folder, or for a number that is no sound, no file is made";
  EXPECT_EQ(Folder.Get("target"), "mine");
}

}  // namespace blunko::test
