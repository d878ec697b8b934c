#include "sound/Sounds.h"

#include <QFile>
#include <QFileInfo>
#include <QLibrary>

#include <SDL_audio.h>
#include <SDL_hints.h>
#include <SDL_thread.h>
#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace blunko {

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = Sounds::Milliseconds;

constexpr qint64 LargestFile = 32 << 20;    // bytes
constexpr qint64 LargestSound = 256 << 20;  // bytes in the device's form, 25 minutes
// A sound that comes later than this no longer fits, and a device that takes nothing for so long has hung up.
constexpr Milliseconds LongestOpening{2000};
constexpr Milliseconds LongestClosing{500};  // at the program's end
constexpr std::size_t MostWaiting = 16;      // sounds, while a device or a disk hangs
/// What the device is asked for: Hz, form and number of channels, and the samples that it takes at a time, 23 ms.
constexpr SDL_AudioSpec DeviceForm{44100, AUDIO_S16SYS, 2, {}, 1024, {}, {}, {}, {}};

/// The sound library, for the thread that makes it. It is loaded with the first sound: it would make up a good part of
/// the start.
struct SoundLibrary {
  /// A device that calls `Feed` for its samples; 0 when there is none.
  SDL_AudioDeviceID Open(SDL_AudioCallback Feed, void* Player) const;
  void Close(SDL_AudioDeviceID Device) const;
  bool Works(SDL_AudioDeviceID Device) const { return GetAudioDeviceStatus(Device) != SDL_AUDIO_STOPPED; }
  /// The samples of a wave file as the device takes them; nothing for what is no wave.
  QByteArray InDeviceForm(const QByteArray& File) const;

  struct Symbol {
    QFunctionPointer Address;
    template <typename Function>
    operator Function*() const {
      return reinterpret_cast<Function*>(Address);
    }
  };
  Symbol Find(const char* Name) { return {file.resolve(Name)}; }

  QLibrary file{QStringLiteral("SDL2-2.0"), 0};
  decltype(&SDL_SetHint) SetHint = Find("SDL_SetHint");
  decltype(&SDL_AudioInit) AudioInit = Find("SDL_AudioInit");
  decltype(&SDL_AudioQuit) AudioQuit = Find("SDL_AudioQuit");
  decltype(&SDL_OpenAudioDevice) OpenAudioDevice = Find("SDL_OpenAudioDevice");
  decltype(&SDL_CloseAudioDevice) CloseAudioDevice = Find("SDL_CloseAudioDevice");
  decltype(&SDL_PauseAudioDevice) PauseAudioDevice = Find("SDL_PauseAudioDevice");
  decltype(&SDL_GetAudioDeviceStatus) GetAudioDeviceStatus = Find("SDL_GetAudioDeviceStatus");
  decltype(&SDL_RWFromConstMem) RWFromConstMem = Find("SDL_RWFromConstMem");
  decltype(&SDL_LoadWAV_RW) LoadWAV_RW = Find("SDL_LoadWAV_RW");
  decltype(&SDL_FreeWAV) FreeWAV = Find("SDL_FreeWAV");
  decltype(&SDL_BuildAudioCVT) BuildAudioCVT = Find("SDL_BuildAudioCVT");
  decltype(&SDL_ConvertAudio) ConvertAudio = Find("SDL_ConvertAudio");
  decltype(&SDL_TLSCleanup) TLSCleanup = Find("SDL_TLSCleanup");
};

void Ignore(const char*, int, const char*, int, const char*, ...) {}

/// Only the sound part of the library is started: without its events it installs no handler for any signal.
SDL_AudioDeviceID SoundLibrary::Open(SDL_AudioCallback Feed, void* Player) const {
  if (!file.isLoaded()) return 0;
  QLibrary Driver(QStringLiteral("asound"), 2);  // it would tell the terminal at length that there is no device
  const auto Tell = reinterpret_cast<int (*)(decltype(&Ignore))>(Driver.resolve("snd_lib_error_set_handler"));
  if (Tell != nullptr) Tell(&Ignore);
  SetHint(SDL_HINT_APP_NAME, "Tollmoor Blunko");  // the name in the system's volume control
  if (AudioInit(nullptr) != 0) return 0;
  SDL_AudioSpec Form = DeviceForm;
  Form.callback = Feed;
  Form.userdata = Player;
  const SDL_AudioDeviceID Device = OpenAudioDevice(nullptr, 0, &Form, nullptr, 0);
  PauseAudioDevice(Device, 0);
  return Device;
}

void SoundLibrary::Close(SDL_AudioDeviceID Device) const {
  if (!file.isLoaded()) return;
  CloseAudioDevice(Device);
  AudioQuit();
  TLSCleanup();  // what the library keeps for this thread
}

QByteArray SoundLibrary::InDeviceForm(const QByteArray& File) const {
  SDL_AudioSpec Form{};
  Uint8* Wave = nullptr;
  Uint32 Length{};
  SDL_RWops* const Source = RWFromConstMem(File.constData(), static_cast<int>(File.size()));
  if (Source == nullptr || LoadWAV_RW(Source, 1, &Form, &Wave, &Length) == nullptr) return {};
  const std::unique_ptr<Uint8, decltype(&SDL_FreeWAV)> Owner(Wave, FreeWAV);
  SDL_AudioCVT Converter{};
  if (BuildAudioCVT(&Converter, Form.format, Form.channels, Form.freq, DeviceForm.format, DeviceForm.channels,
                    DeviceForm.freq) < 0 ||
      qint64{Length} * Converter.len_mult > LargestSound) {
    return {};
  }
  QByteArray Sound(static_cast<qsizetype>(qint64{Length} * Converter.len_mult), Qt::Uninitialized);
  std::copy_n(Wave, Length, Sound.begin());
  Converter.buf = reinterpret_cast<Uint8*>(Sound.data());
  Converter.len = Converter.len_cvt = static_cast<int>(Length);
  if (Converter.needed && ConvertAudio(&Converter) != 0) return {};
  Sound.truncate(Converter.len_cvt);
  return Sound;
}

/// A plain file of no more than the largest size; empty for anything else. A pipe or a device isn't even opened.
QByteArray ReadSoundFile(const QString& Path) {
  QFile File(Path);
  if (!QFileInfo(Path).isFile() || File.size() > LargestFile || !File.open(QIODevice::ReadOnly)) return {};
  return File.read(LargestFile);
}

}  // namespace

/// What the game's thread, a thread of our own and the device's share. Each of the first two holds it alive: the second
/// may outlast the first when a device or a disk hangs. The library is never called with the mutex held.
struct Sounds::Player {
  const Milliseconds idleTime, retryTime;
  std::mutex mutex{};
  std::condition_variable changed{};
  /// Files, and until when each still fits. The first one is being tried.
  std::deque<std::pair<QString, Clock::time_point>> waiting{};
  QByteArray sound{};     ///< what the device hasn't taken of it
  bool running = false;   ///< there is a thread
  bool stopping = false;  ///< the program ends
  Clock::time_point retryAt{};

  void Run();
  static void Feed(void* Self, Uint8* Stream, int Length);
};

/// Plays what is asked for, until nothing has been for a while or the device is gone.
void Sounds::Player::Run() {
  const SoundLibrary Library;
  std::unique_lock Lock(mutex);
  while (!waiting.empty() && !stopping) {
    Lock.unlock();
    const SDL_AudioDeviceID Device = Library.Open(&Feed, this);
    bool Usable = Device != 0;
    Lock.lock();
    if (!Usable) {
      waiting.clear();
      retryAt = Clock::now() + retryTime;
    }
    while (Usable && changed.wait_for(Lock, idleTime, [this] { return !waiting.empty() || stopping; }) && !stopping) {
      const auto [Path, Latest] = waiting.front();
      Lock.unlock();
      Usable = Library.Works(Device);
      QByteArray Sound = Library.InDeviceForm(ReadSoundFile(Path));
      Lock.lock();
      waiting.pop_front();
      if (!Usable || Sound.isEmpty() || Clock::now() > Latest) continue;
      waiting.clear();
      sound = std::move(Sound);
      const auto Fed = [&] { return changed.wait_for(Lock, LongestOpening) == std::cv_status::no_timeout; };
      while (!sound.isEmpty() && !stopping && Fed()) continue;
      sound.clear();  // of a device that has hung up
    }
    Lock.unlock();
    Library.Close(Device);
    Lock.lock();
  }  // a sound can be asked for while the device closes
  running = false;
  changed.notify_all();
}

/// The device takes its next samples; when the sound is over, silence.
void Sounds::Player::Feed(void* Self, Uint8* Stream, int Length) {
  Player& p = *static_cast<Player*>(Self);
  const std::lock_guard Lock(p.mutex);
  const qsizetype Part = std::min<qsizetype>(Length, p.sound.size());
  std::fill_n(Stream, Length, Uint8{});
  std::copy_n(p.sound.constData(), Part, Stream);
  p.sound.remove(0, Part);
  if (Part > 0) p.changed.notify_all();
}

Sounds::Sounds(Milliseconds IdleTime, Milliseconds RetryTime) : player(new Player{IdleTime, RetryTime}) {}

Sounds::~Sounds() {
  std::unique_lock Lock(player->mutex);
  player->stopping = true;
  player->changed.notify_all();
  player->changed.wait_for(Lock, LongestClosing, [this] { return !player->running; });
}

void Sounds::Play(const QString& Path) {
  Player& p = *player;
  const std::lock_guard Lock(p.mutex);
  if (!p.sound.isEmpty() || p.waiting.size() == MostWaiting || Clock::now() < p.retryAt) return;
  try {
    if (!p.running) std::thread([Shared = player] { Shared->Run(); }).detach();
  } catch (const std::system_error&) {  // no room for another thread
    return;
  }
  p.running = true;
  p.waiting.emplace_back(Path, Clock::now() + LongestOpening);
  p.changed.notify_all();
}

bool Sounds::IsPlaying() const {
  const std::lock_guard Lock(player->mutex);
  return !player->sound.isEmpty() || !player->waiting.empty();
}

}  // namespace blunko
