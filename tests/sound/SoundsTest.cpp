#include <QDir>
#include <QFileInfo>

#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

#include "sound/SoundFiles.h"
#include "sound/Sounds.h"
#include "tests/sound/SoundRecorder.h"

namespace blunko::test {
namespace {

using Milliseconds = Sounds::Milliseconds;

bool HoldsOpen(const QString& Path) {
  const QDir Descriptors("/proc/self/fd");
  for (const QFileInfo& Link : Descriptors.entryInfoList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)) {
    if (Link.symLinkTarget() == Path) return true;
  }
  return false;
}

/// Calls what must not wait for anything.
void AtOnce(const std::function<void()>& Call) {
  QElapsedTimer Clock;
  Clock.start();
  Call();
  EXPECT_LT(Clock.elapsed(), 3000) << "for a very busy machine; a call that waits does so for ever";
}

void PlayToEnd(Sounds& Player, const QString& File) {
  AtOnce([&] { Player.Play(File); });
  EXPECT_TRUE(WaitFor([&] { return !Player.IsPlaying(); }, 20'000));
}

TEST(Sounds, TheSamplesReachTheDeviceUnchangedAndTheDeviceIsGivenBack) {
  const SoundRecorder Recorder;
  const Tone Played{.Channels = 2};
  const QString File = WriteFile(Recorder.NameInFolder("tone.wav"), Played.File());
  Sounds Player(Milliseconds(150));
  EXPECT_FALSE(HoldsOpen(Recorder.Path()));
  AtOnce([&] { Player.Play(File); });
  EXPECT_TRUE(Player.IsPlaying());
  EXPECT_TRUE(WaitFor([&] { return !Player.IsPlaying() && !HoldsOpen(Recorder.Path()); }));
  EXPECT_TRUE(ReadFile(Recorder.Path()).contains(Played.Samples()));
}

TEST(Sounds, ASoundIsNeverCutAndTheNewRequestIsDropped) {
  const SoundRecorder Recorder;
  const Tone Long{.Channels = 2, .Frequency = 300, .Seconds = 0.8}, Short{.Channels = 2, .Frequency = 2000};
  const QString Low = WriteFile(Recorder.NameInFolder("low.wav"), Long.File());
  const QString High = WriteFile(Recorder.NameInFolder("high.wav"), Short.File());
  Sounds Player;
  Player.Play(Low);
  Player.Play(High);  // while the device opens
  ASSERT_TRUE(WaitFor([&] { return QFileInfo(Recorder.Path()).size() > 44100 * 4 / 5; }));
  ASSERT_TRUE(Player.IsPlaying());
  PlayToEnd(Player, High);  // in the midst of it
  PlayToEnd(Player, High);  // the next one sounds again, on the same device
  ASSERT_TRUE(WaitFor([&] { return ReadFile(Recorder.Path()).contains(Short.Samples()); }));
  const QByteArray All = ReadFile(Recorder.Path());
  EXPECT_TRUE(All.contains(Long.Samples()));
  EXPECT_EQ(All.count(Short.Samples()), 1);
}

TEST(Sounds, UsualFormatsAndLongWavesSoundAlike) {
  const SoundRecorder Recorder("1");
  const QByteArray Plain = Tone{}.File();
  QByteArray Listed = Plain, Endless = Plain, Promising = Plain;
  Listed.insert(36, "LIST" + Tone::Number(5, 4) + QByteArray("INFOx\0", 6));
  Endless.replace(4, 4, Tone::Number(0xFFFFFFFF, 4)).replace(40, 4, Tone::Number(0xFFFFFFFF, 4));
  Promising.replace(40, 4, Tone::Number(1'000'000, 4));
  const std::pair<const char*, QByteArray> Rows[] = {
      {"8 bits, 11025 Hz", Tone{.Rate = 11025, .Width = 8}.File()},
      {"24 bits, 96000 Hz, stereo", Tone{.Rate = 96000, .Width = 24, .Channels = 2}.File()},
      {"a list before the samples", Listed},
      {"endless samples", Endless},
      {"fewer samples than promised", Promising},
      {"long", Tone{.Rate = 8000, .Width = 8, .Seconds = 22}.File()},  // more than is converted at first
  };
  for (const auto& [Name, File] : Rows) {
    SCOPED_TRACE(Name);
    {
      Sounds Player;
      PlayToEnd(Player, WriteFile(Recorder.NameInFolder("tone.wav"), File));
    }
    const SoundRecorder::Heard Found = Recorder.Hear();
    EXPECT_NEAR(Found.Seconds, Name == std::string("long") ? 22 : 0.2, 0.02);
    EXPECT_NEAR(Found.Peak, 0.4, 0.03);
  }
}

TEST(Sounds, WhatCannotBePlayedIsSilentAndInNobodysWay) {
  const SoundRecorder Recorder("1");
  const QByteArray Plain = Tone{}.File();
  const auto With = [&Plain](qsizetype Place, quint32 Value, int Size) {
    return QByteArray(Plain).replace(Place, Size, Tone::Number(Value, Size));
  };
  const std::pair<const char*, QByteArray> Rows[] = {
      {"empty", ""},
      {"cut before the samples", Plain.left(44)},
      {"samples without a format", Plain.left(12) + Plain.mid(36)},
      {"no samples", With(40, 0, 4)},
      {"a chunk longer than any file", With(16, 0xFFFFFFF0, 4)},
      {"a format too short", With(16, 8, 4)},
      {"unknown format", With(20, 0x1234, 2)},
      {"65535 channels", With(22, 0xFFFF, 2)},
      {"one sample a second", With(24, 1, 4)},
      {"four billion samples a second", With(24, 0xFFFFFFFF, 4)},
      {"samples of no bytes", With(32, 0, 2)},
      {"samples of 7 bits", With(34, 7, 2)},
  };
  Sounds Player;
  for (const auto& [Name, File] : Rows) {
    SCOPED_TRACE(Name);
    PlayToEnd(Player, WriteFile(Recorder.NameInFolder("odd.wav"), File));
  }
  const QString Pipe = Recorder.NameInFolder("pipe.wav"), Missing = Recorder.NameInFolder("missing.wav");
  ASSERT_EQ(mkfifo(QFile::encodeName(Pipe).constData(), 0600), 0);
  const QString Gigabyte = WriteFile(Recorder.NameInFolder("large.wav"), With(40, 0x3FFFFFFF, 4));
  ASSERT_EQ(truncate(QFile::encodeName(Gigabyte).constData(), 1 << 30), 0);
  for (const QString& File : {QString(), Missing, Recorder.NameInFolder(""), QString("/dev/zero"), Pipe, Gigabyte}) {
    SCOPED_TRACE(qPrintable(File));
    PlayToEnd(Player, File);
  }
  EXPECT_LT(Recorder.Hear().Peak, 0.01);
  PlayToEnd(Player, WriteFile(Recorder.NameInFolder("good.wav"), Plain));
  EXPECT_NEAR(Recorder.Hear().Seconds, 0.2, 0.02);
}

TEST(Sounds, WithoutADeviceNothingWaitsAndLaterItIsTriedAgain) {
  const SoundRecorder Recorder("1");
  const QString File = WriteFile(Recorder.NameInFolder("tone.wav"), Tone{}.File());
  qputenv("SDL_AUDIODRIVER", "nosuch");
  Sounds Player(Milliseconds(2000), Milliseconds(1000));
  PlayToEnd(Player, File);
  qputenv("SDL_AUDIODRIVER", "disk");
  Player.Play(File);
  EXPECT_FALSE(Player.IsPlaying());  // too early
  EXPECT_TRUE(WaitFor([&] {
    Player.Play(File);
    return Player.IsPlaying();
  }));
  ASSERT_TRUE(WaitFor([&] { return !Player.IsPlaying(); }));
  EXPECT_NEAR(Recorder.Hear().Peak, 0.4, 0.03);
}

TEST(Sounds, AHangingDeviceHoldsUpNeitherTheGameNorItsEnd) {
  const SoundRecorder Recorder;
  const QString File = WriteFile(Recorder.NameInFolder("tone.wav"), Tone{}.File());
  const QByteArray Pipe = QFile::encodeName(Recorder.NameInFolder("device"));
  ASSERT_EQ(mkfifo(Pipe.constData(), 0600), 0);  // opening it waits for somebody who reads
  qputenv("SDL_DISKAUDIOFILE", Pipe);
  std::optional<Sounds> Player(std::in_place);
  AtOnce([&] {
    Player->Play(File);
    Player->Play(File);
    Player.reset();
  });
  const int Reader = open(Pipe.constData(), O_RDONLY | O_NONBLOCK);  // lets the thread come to its end
  EXPECT_TRUE(WaitFor([&] {
    char Bytes[65536];
    while (read(Reader, Bytes, sizeof Bytes) > 0) continue;
    return !HoldsOpen(QFile::decodeName(Pipe)) || read(Reader, Bytes, 1) == 0;
  }));
  close(Reader);
}

TEST(Extraction, EverySoundIsThere) {
  const QTemporaryDir Folder;
  ExtractSounds(Folder.path() + '/');
  const QFileInfoList Files = QDir(Folder.path()).entryInfoList(QDir::Files);
  EXPECT_EQ(Files.size(), 9);
  for (const QFileInfo& File : Files) EXPECT_GT(File.size(), 1000) << qPrintable(File.fileName());
}

TEST(Extraction, WritesOnlyWhatDiffersInPlaceAndOnlyIntoPlainFiles) {
  const SoundRecorder Folder;
  const QString Longer = WriteFile(Folder.NameInFolder("longer"), QByteArray(100'000, 'x'));
  ASSERT_EQ(ExtractResource(103, "CUSTOM", Longer), 0);
  const QByteArray After = ReadFile(Longer);
  EXPECT_EQ(After.size(), 100'000);
  EXPECT_TRUE(After.startsWith("RIFF") && After.endsWith('x'));
  const QDateTime LongAgo(QDate(2001, 1, 1), QTime(0, 0));
  const auto SetTime = [&] {
    QFile File(Longer);
    return File.open(QIODevice::ReadWrite) && File.setFileTime(LongAgo, QFileDevice::FileModificationTime);
  };
  ASSERT_TRUE(SetTime());
  ASSERT_EQ(ExtractResource(103, "CUSTOM", Longer), 0);
  EXPECT_EQ(QFileInfo(Longer).lastModified(), LongAgo) << "the same bytes are there already";

  const QString Target = WriteFile(Folder.NameInFolder("target"), "mine");
  const QString Planted = Folder.NameInFolder("planted"), Pipe = Folder.NameInFolder("pipe");
  ASSERT_TRUE(QFile::link(Target, Planted));
  ASSERT_EQ(mkfifo(QFile::encodeName(Pipe).constData(), 0600), 0);
  const int Reader = open(QFile::encodeName(Pipe).constData(), O_RDONLY | O_NONBLOCK);
  for (const QString& Path : {Planted, Pipe, Folder.NameInFolder(""), Folder.NameInFolder("no/such/folder")}) {
    EXPECT_NE(ExtractResource(103, "CUSTOM", Path), 0) << qPrintable(Path);
  }
  EXPECT_EQ(ReadFile(Target), "mine");
  close(Reader);
}

}  // namespace
}  // namespace blunko::test
