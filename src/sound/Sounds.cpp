#include "sound/Sounds.h"

#include <QFile>
#include <QFileInfo>
#include <QLibrary>

#include <SDL_audio.h>
#include <SDL_hints.h>
#include <SDL_thread.h>
#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <type_traits>
#include <utility>

namespace blunko {

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = Sounds::Milliseconds;

constexpr qint64 LargestFile = 32 << 20;                // bytes
constexpr qint64 LargestSound = 256 << 20;              // bytes in the device's form, 25 minutes
constexpr Milliseconds LongestOpening{2000};            // a sound that comes later than this no longer fits
constexpr Milliseconds LongestClosing{500};             // at the program's end
constexpr Milliseconds LookAgain{50};                   // while a sound plays
constexpr int DeviceRate = 44100;                       // Hz
constexpr int DeviceFrame = 4;                          // bytes: two channels of 16 bits
constexpr int DevicePeriod = 1024;                      // samples, 23 ms
constexpr int LowestRate = 1000, HighestRate = 384000;  // Hz, of a wave
constexpr int MostChannels = 8;

/// The functions of the sound library. It is loaded with the first sound: it would make up a good part of the start.
struct SoundLibrary {
  decltype(&SDL_SetHint) SetHint;
  decltype(&SDL_AudioInit) AudioInit;
  decltype(&SDL_AudioQuit) AudioQuit;
  decltype(&SDL_OpenAudioDevice) OpenAudioDevice;
  decltype(&SDL_CloseAudioDevice) CloseAudioDevice;
  decltype(&SDL_PauseAudioDevice) PauseAudioDevice;
  decltype(&SDL_GetAudioDeviceStatus) GetAudioDeviceStatus;
  decltype(&SDL_QueueAudio) QueueAudio;
  decltype(&SDL_GetQueuedAudioSize) GetQueuedAudioSize;
  decltype(&SDL_RWFromConstMem) RWFromConstMem;
  decltype(&SDL_LoadWAV_RW) LoadWAV_RW;
  decltype(&SDL_FreeWAV) FreeWAV;
  decltype(&SDL_BuildAudioCVT) BuildAudioCVT;
  decltype(&SDL_ConvertAudio) ConvertAudio;
  decltype(&SDL_TLSCleanup) TLSCleanup;

  bool Load() {
    QLibrary File(QStringLiteral("SDL2-2.0"), 0);
    bool Found = true;
    const auto Find = [&](auto& Function, const char* Name) {
      Function = reinterpret_cast<std::remove_reference_t<decltype(Function)>>(File.resolve(Name));
      Found = Found && Function != nullptr;
    };
    Find(SetHint, "SDL_SetHint");
    Find(AudioInit, "SDL_AudioInit");
    Find(AudioQuit, "SDL_AudioQuit");
    Find(OpenAudioDevice, "SDL_OpenAudioDevice");
    Find(CloseAudioDevice, "SDL_CloseAudioDevice");
    Find(PauseAudioDevice, "SDL_PauseAudioDevice");
    Find(GetAudioDeviceStatus, "SDL_GetAudioDeviceStatus");
    Find(QueueAudio, "SDL_QueueAudio");
    Find(GetQueuedAudioSize, "SDL_GetQueuedAudioSize");
    Find(RWFromConstMem, "SDL_RWFromConstMem");
    Find(LoadWAV_RW, "SDL_LoadWAV_RW");
    Find(FreeWAV, "SDL_FreeWAV");
    Find(BuildAudioCVT, "SDL_BuildAudioCVT");
    Find(ConvertAudio, "SDL_ConvertAudio");
    Find(TLSCleanup, "SDL_TLSCleanup");
    SilenceDriver();
    return Found;
  }

  /// Its driver would tell the terminal at length that there is no device.
  static void SilenceDriver() {
    using SetHandler = int (*)(decltype(&Ignore));
    QLibrary Driver(QStringLiteral("asound"), 2);
    if (const auto Set = reinterpret_cast<SetHandler>(Driver.resolve("snd_lib_error_set_handler"))) Set(&Ignore);
  }
  static void Ignore(const char*, int, const char*, int, const char*, ...) {}
};

/// A plain file of no more than the largest size; empty for anything else. A pipe or a device isn't even opened.
QByteArray ReadSoundFile(const QString& Path) {
  QFile File(Path);
  if (!QFileInfo(Path).isFile() || File.size() > LargestFile || !File.open(QIODevice::ReadOnly)) return {};
  return File.read(LargestFile);
}

}  // namespace

/// What the game's thread and the device's thread share. Each holds it alive: the second may outlast the first when a
/// device or a disk hangs.
class Sounds::Player {
 public:
  Player(Milliseconds IdleTime, Milliseconds RetryTime) : idleTime(IdleTime), retryTime(RetryTime) {}

  static void Start(const std::shared_ptr<Player>& Shared, const QString& Path);
  bool IsBusy();
  void Stop();

 private:
  void Run();
  bool Open();
  void Close();
  QByteArray InDeviceForm(const QByteArray& File) const;
  void WaitForEnd(std::unique_lock<std::mutex>& Lock, Clock::time_point Latest);
  bool HasDevice() const { return sdl.GetAudioDeviceStatus(device) != SDL_AUDIO_STOPPED; }

  const Milliseconds idleTime, retryTime;

  std::thread thread;  ///< of the device
  std::mutex mutex;
  std::condition_variable changed;
  QString next;             ///< the wave file that waits for the device
  bool busy = false;        ///< from the request to the last sample
  bool running = false;     ///< the device's thread exists
  bool stopping = false;    ///< the program ends
  Clock::time_point asked;  ///< time of the request
  Clock::time_point retryAt;

  // Of the device's thread alone:
  SoundLibrary sdl{};
  bool loaded = false, initialised = false;
  SDL_AudioDeviceID device = 0;
};

void Sounds::Player::Start(const std::shared_ptr<Player>& Shared, const QString& Path) {
  Player& p = *Shared;
  const std::lock_guard Lock(p.mutex);
  if (p.busy || Clock::now() < p.retryAt) return;
  p.next = Path;
  p.asked = Clock::now();
  p.busy = true;
  p.changed.notify_all();
  if (p.running) return;
  try {
    if (p.thread.joinable()) p.thread.join();  // it has nothing more to do
    p.thread = std::thread([Shared] { Shared->Run(); });
    p.running = true;
  } catch (const std::system_error&) {  // no room for another thread
    p.busy = false;
  }
}

bool Sounds::Player::IsBusy() {
  const std::lock_guard Lock(mutex);
  return busy;
}

void Sounds::Player::Stop() {
  std::unique_lock Lock(mutex);
  stopping = true;
  changed.notify_all();
  const bool Ended = changed.wait_for(Lock, LongestClosing, [this] { return !running; });
  if (thread.joinable()) Ended ? thread.join() : thread.detach();
}

/// The device's thread: plays what is asked for, until nothing has been for a while or the device is gone.
void Sounds::Player::Run() {
  std::unique_lock Lock(mutex);
  do {
    Lock.unlock();
    bool Usable = Open();
    Lock.lock();
    if (!Usable) retryAt = Clock::now() + retryTime;
    while (Usable && changed.wait_for(Lock, idleTime, [this] { return busy || stopping; }) && !stopping) {
      const QString Path = std::exchange(next, QString());
      const auto Latest = asked + LongestOpening;
      Lock.unlock();
      const QByteArray Sound = InDeviceForm(ReadSoundFile(Path));
      const bool InTime = Clock::now() < Latest;
      if (InTime) sdl.QueueAudio(device, Sound.constData(), static_cast<Uint32>(Sound.size()));
      Lock.lock();
      if (InTime) WaitForEnd(Lock, Latest + Milliseconds(Sound.size() * 1000LL / (DeviceRate * DeviceFrame)));
      Usable = HasDevice();
      busy = false;
    }
    if (!Usable) busy = false;
    Lock.unlock();
    Close();
    Lock.lock();
  } while (busy && !stopping);  // a sound can be asked for while the device closes
  running = false;
  changed.notify_all();
}

/// A device that has hung up takes no more: it isn't waited for beyond the time that the sound lasts, and a little.
void Sounds::Player::WaitForEnd(std::unique_lock<std::mutex>& Lock, Clock::time_point Latest) {
  while (!stopping && HasDevice() && sdl.GetQueuedAudioSize(device) > 0 && Clock::now() < Latest) {
    changed.wait_for(Lock, LookAgain);
  }
}

/// Only the sound part of the library is started: without its events it installs no handler for any signal.
bool Sounds::Player::Open() {
  loaded = sdl.Load();
  if (!loaded) return false;
  sdl.SetHint(SDL_HINT_APP_NAME, "Tollmoor Blunko");  // the name in the system's volume control
  initialised = sdl.AudioInit(nullptr) == 0;
  if (!initialised) return false;
  SDL_AudioSpec Form{};
  Form.freq = DeviceRate;
  Form.format = AUDIO_S16SYS;
  Form.channels = 2;
  Form.samples = DevicePeriod;
  SDL_AudioSpec Given{};
  device = sdl.OpenAudioDevice(nullptr, 0, &Form, &Given, 0);
  if (device == 0) return false;
  sdl.PauseAudioDevice(device, 0);
  return true;
}

void Sounds::Player::Close() {
  if (device != 0) sdl.CloseAudioDevice(std::exchange(device, 0));
  if (std::exchange(initialised, false)) sdl.AudioQuit();
  if (loaded) sdl.TLSCleanup();  // what the library keeps for this thread
}

/// The samples of a wave file as the device takes them; nothing for what is no wave, or one that no ear would want.
QByteArray Sounds::Player::InDeviceForm(const QByteArray& File) const {
  SDL_AudioSpec Form{};
  Uint8* Wave = nullptr;
  Uint32 Length = 0;
  SDL_RWops* const Source = sdl.RWFromConstMem(File.constData(), static_cast<int>(File.size()));
  if (Source == nullptr || sdl.LoadWAV_RW(Source, 1, &Form, &Wave, &Length) == nullptr) return {};
  const std::unique_ptr<Uint8, decltype(&SDL_FreeWAV)> Owner(Wave, sdl.FreeWAV);
  SDL_AudioCVT Converter{};
  const bool Audible = Form.channels <= MostChannels && Form.freq >= LowestRate && Form.freq <= HighestRate;
  if (!Audible ||
      sdl.BuildAudioCVT(&Converter, Form.format, Form.channels, Form.freq, AUDIO_S16SYS, 2, DeviceRate) < 0 ||
      qint64{Length} * Converter.len_mult > LargestSound) {
    return {};
  }
  QByteArray Sound(static_cast<qsizetype>(qint64{Length} * Converter.len_mult), Qt::Uninitialized);
  std::copy_n(Wave, Length, Sound.begin());
  Converter.buf = reinterpret_cast<Uint8*>(Sound.data());
  Converter.len = static_cast<int>(Length);
  Converter.len_cvt = Converter.len;
  if (Converter.needed && sdl.ConvertAudio(&Converter) != 0) return {};
  Sound.truncate(Converter.len_cvt);
  return Sound;
}

Sounds::Sounds(Milliseconds IdleTime, Milliseconds RetryTime) : player(std::make_shared<Player>(IdleTime, RetryTime)) {}

Sounds::~Sounds() { player->Stop(); }

void Sounds::Play(const QString& Path) { Player::Start(player, Path); }

bool Sounds::IsPlaying() const { return player->IsBusy(); }

}  // namespace blunko
