#pragma once

#include <QString>

#include <chrono>
#include <memory>

namespace blunko {

/// Plays wave files, one at a time. The sound device belongs to a thread that lives only while there is something to
/// play and a little longer, and reads the files, too: a device, a sound server or a disk that hangs never holds up the
/// game, and a silent program holds no device and no thread.
class Sounds {
 public:
  using Milliseconds = std::chrono::milliseconds;

  /// The device is closed when nothing has played for `IdleTime`. One that can't be opened isn't tried again for
  /// `RetryTime`.
  explicit Sounds(Milliseconds IdleTime = Milliseconds(2000), Milliseconds RetryTime = Milliseconds(5000));
  /// Cuts off what plays, and waits for the device to close, but not for long.
  ~Sounds();

  /// Starts a plain wave file and returns at once. Without a device, for a file that can't be played, and while another
  /// sound plays, nothing happens; a file that can't be played doesn't keep the next one from it.
  void Play(const QString& Path);
  /// Whether a sound plays, or waits for the device or the disk.
  bool IsPlaying() const;

 private:
  struct Player;
  std::shared_ptr<Player> player;
};

}  // namespace blunko
