#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>

namespace blunko {

/// Plays wave files, one at a time. The sound device belongs to a thread that lives only while there is something to
/// play and a little longer: a device or a sound server that hangs never holds up the game, and a silent program holds
/// no device and no thread.
class Sounds {
 public:
  using Milliseconds = std::chrono::milliseconds;

  /// The device is closed when nothing has played for `IdleTime`. One that can't be opened isn't tried again for
  /// `RetryTime`.
  explicit Sounds(Milliseconds IdleTime = Milliseconds(2000), Milliseconds RetryTime = Milliseconds(5000));
  /// Cuts off what plays, and waits for the device to close, but not for long.
  ~Sounds();

  /// Starts a plain wave file and returns. Without a device, for a file that can't be played, and while another sound
  /// plays, nothing happens.
  void Play(const QString& Path);
  /// Whether a sound plays, or waits for the device to open.
  bool IsPlaying() const;

 private:
  class Player;
  std::shared_ptr<Player> player;
};

/// The same sound in a wave file without anything behind its samples: what the header promises beyond the file's end
/// is taken back, so that a reader need not doubt any length in it. Nothing for what is no wave file, and for a form
/// that no sound has.
std::optional<QByteArray> SoundWave(const QByteArray& File);

}  // namespace blunko
