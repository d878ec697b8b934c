#include "sound/Sounds.h"

#include <QLibrary>
#include <QtEndian>

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

#include "storage/FileAccess.h"

namespace blunko {

namespace {

using Clock = std::chrono::steady_clock;

constexpr qint64 LargestFile = 32 << 20;                         // bytes
constexpr auto LongestOpening = std::chrono::seconds(2);         // a sound that comes later than this no longer fits
constexpr auto LongestClosing = std::chrono::milliseconds(500);  // at the program's end
constexpr int DeviceRate = 44100;                                // Hz
constexpr int DeviceFrame = 4;                                   // bytes: two channels of 16 bits
constexpr int DevicePeriod = 1024;                               // samples, 23 ms
constexpr int FirstPortion = 20;  // seconds of a wave that are converted before it begins; then one at a time

/// The functions of the sound library. It is loaded with the first sound: it would make up a good part of the start.
struct SoundLibrary {
  decltype(&SDL_SetHint) SetHint;
  decltype(&SDL_AudioInit) AudioInit;
  decltype(&SDL_AudioQuit) AudioQuit;
  decltype(&SDL_OpenAudioDevice) OpenAudioDevice;
  decltype(&SDL_CloseAudioDevice) CloseAudioDevice;
  decltype(&SDL_PauseAudioDevice) PauseAudioDevice;
  decltype(&SDL_LockAudioDevice) LockAudioDevice;
  decltype(&SDL_UnlockAudioDevice) UnlockAudioDevice;
  decltype(&SDL_GetAudioDeviceStatus) GetAudioDeviceStatus;
  decltype(&SDL_RWFromConstMem) RWFromConstMem;
  decltype(&SDL_LoadWAV_RW) LoadWAV_RW;
  decltype(&SDL_FreeWAV) FreeWAV;
  decltype(&SDL_NewAudioStream) NewAudioStream;
  decltype(&SDL_FreeAudioStream) FreeAudioStream;
  decltype(&SDL_AudioStreamPut) AudioStreamPut;
  decltype(&SDL_AudioStreamAvailable) AudioStreamAvailable;
  decltype(&SDL_AudioStreamGet) AudioStreamGet;
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
    Find(LockAudioDevice, "SDL_LockAudioDevice");
    Find(UnlockAudioDevice, "SDL_UnlockAudioDevice");
    Find(GetAudioDeviceStatus, "SDL_GetAudioDeviceStatus");
    Find(RWFromConstMem, "SDL_RWFromConstMem");
    Find(LoadWAV_RW, "SDL_LoadWAV_RW");
    Find(FreeWAV, "SDL_FreeWAV");
    Find(NewAudioStream, "SDL_NewAudioStream");
    Find(FreeAudioStream, "SDL_FreeAudioStream");
    Find(AudioStreamPut, "SDL_AudioStreamPut");
    Find(AudioStreamAvailable, "SDL_AudioStreamAvailable");
    Find(AudioStreamGet, "SDL_AudioStreamGet");
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

}  // namespace

/// What the game's thread and the device's thread share. Each holds it alive: the second may outlast the first when a
/// device hangs.
class Sounds::Player {
 public:
  Player(Milliseconds IdleTime, Milliseconds RetryTime) : idleTime(IdleTime), retryTime(RetryTime) {}

  static void Start(const std::shared_ptr<Player>& Shared, const QString& Path);
  bool IsBusy();
  void Stop();

 private:
  void Run();
  void PlayAll(std::unique_lock<std::mutex>& Lock);
  bool Open();
  void Close();
  bool Begin(const QByteArray& File);
  void End();
  static void SDLCALL Fill(void* User, Uint8* Out, int Length);

  const Milliseconds idleTime, retryTime;

  std::mutex mutex;
  std::condition_variable changed;
  QByteArray next;          ///< the wave file that waits for the device
  bool busy = false;        ///< from the request to the last sample
  bool finished = false;    ///< the device has taken the last sample
  bool running = false;     ///< the device's thread exists
  bool stopping = false;    ///< the program ends
  Clock::time_point asked;  ///< time of the request
  Clock::time_point retryAt;

  // Of the device's thread alone:
  SoundLibrary sdl{};
  bool loaded = false, initialised = false;
  SDL_AudioDeviceID device = 0;

  // Of the device's callback, set while it is locked out:
  SDL_AudioStream* stream = nullptr;
  Uint8* wave = nullptr;
  Uint32 waveLength = 0;
  Uint32 taken = 0;      ///< bytes of the wave that the converter has
  QByteArray silence;    ///< a second of it in the wave's form
  qint64 remaining = 0;  ///< bytes that the device hasn't
};

void Sounds::Player::Start(const std::shared_ptr<Player>& Shared, const QString& Path) {
  Player& p = *Shared;
  {
    const std::lock_guard Lock(p.mutex);
    if (p.busy || Clock::now() < p.retryAt) return;
  }
  const auto File = ReadWholeFile(Path, LargestFile);
  auto Wave = File ? SoundWave(*File) : std::nullopt;
  if (!Wave) return;

  const std::lock_guard Lock(p.mutex);
  p.next = *std::move(Wave);
  p.asked = Clock::now();
  p.busy = true;
  p.changed.notify_all();
  if (p.running) return;
  try {
    std::thread([Shared] { Shared->Run(); }).detach();
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
  changed.wait_for(Lock, LongestClosing, [this] { return !running; });
}

/// The device's thread.
void Sounds::Player::Run() {
  std::unique_lock Lock(mutex);
  do {
    Lock.unlock();
    const bool Opened = Open();
    Lock.lock();
    if (Opened) {
      PlayAll(Lock);
    } else {
      retryAt = Clock::now() + retryTime;
      busy = false;
    }
    Lock.unlock();
    Close();
    Lock.lock();
  } while (busy && !stopping);  // a sound can be asked for while the device closes
  running = false;
  changed.notify_all();
}

/// Plays what is asked for, until nothing has been for a while or the device is gone.
void Sounds::Player::PlayAll(std::unique_lock<std::mutex>& Lock) {
  while (changed.wait_for(Lock, idleTime, [this] { return busy || stopping; }) && !stopping) {
    const bool InTime = Clock::now() - asked < LongestOpening;
    if (InTime && sdl.GetAudioDeviceStatus(device) == SDL_AUDIO_STOPPED) return;
    const QByteArray File = std::exchange(next, QByteArray());
    finished = false;
    Lock.unlock();
    const bool Plays = InTime && Begin(File);
    Lock.lock();
    if (Plays) changed.wait(Lock, [this] { return finished || stopping; });
    Lock.unlock();
    End();
    Lock.lock();
    busy = false;
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
  Form.callback = &Player::Fill;
  Form.userdata = this;
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

bool Sounds::Player::Begin(const QByteArray& File) {
  SDL_AudioSpec Form{};
  SDL_RWops* Source = sdl.RWFromConstMem(File.constData(), static_cast<int>(File.size()));
  if (Source == nullptr || sdl.LoadWAV_RW(Source, 1, &Form, &wave, &waveLength) == nullptr) return false;
  SDL_AudioStream* Converter = sdl.NewAudioStream(Form.format, Form.channels, Form.freq, AUDIO_S16SYS, 2, DeviceRate);
  if (Converter == nullptr) return false;
  const auto Rate = static_cast<Uint32>(Form.freq);
  const Uint32 Frame = Form.channels * SDL_AUDIO_BITSIZE(Form.format) / 8U;
  waveLength -= waveLength % Frame;
  taken = static_cast<Uint32>(std::min(quint64{waveLength}, quint64{FirstPortion} * Rate * Frame));
  const bool Fits = sdl.AudioStreamPut(Converter, wave, static_cast<int>(taken)) == 0;
  silence.fill(static_cast<char>(Form.silence), static_cast<qsizetype>(Rate * Frame));
  sdl.LockAudioDevice(device);
  remaining = Fits ? (qint64{waveLength / Frame} * DeviceRate / Rate + DeviceRate / 100) * DeviceFrame : 0;
  stream = Converter;
  sdl.UnlockAudioDevice(device);
  return true;
}

void Sounds::Player::End() {
  sdl.LockAudioDevice(device);
  SDL_AudioStream* const Converter = std::exchange(stream, nullptr);
  sdl.UnlockAudioDevice(device);
  if (Converter != nullptr) sdl.FreeAudioStream(Converter);
  sdl.FreeWAV(std::exchange(wave, nullptr));
}

/// The callback of the device. It converts a long wave bit by bit, so that it is never held as a whole in the device's
/// form; each seam costs a little purity, and a short wave has none. Silence follows it, which pushes its end out of
/// the converter: the library's own flush makes a click there.
void Sounds::Player::Fill(void* User, Uint8* Out, int Length) {
  Player& p = *static_cast<Player*>(User);
  const bool Ended = p.remaining <= 0;
  int Got = 0;
  if (p.stream != nullptr && !Ended) {
    const auto Second = static_cast<Uint32>(p.silence.size());
    bool Fits = true;
    while (Fits && p.sdl.AudioStreamAvailable(p.stream) < Length) {
      const Uint32 Left = std::min(Second, p.waveLength - p.taken);
      const void* From = Left > 0 ? static_cast<const void*>(p.wave + p.taken) : p.silence.constData();
      Fits = p.sdl.AudioStreamPut(p.stream, From, static_cast<int>(Left > 0 ? Left : Second)) == 0;
      p.taken += Left;
    }
    Got = Fits ? std::max(p.sdl.AudioStreamGet(p.stream, Out, Length), 0) : 0;
    p.remaining = Got > 0 ? p.remaining - Got : 0;
  }
  std::fill(Out + Got, Out + Length, Uint8{0});
  if (p.stream == nullptr || !Ended) return;
  const std::lock_guard Lock(p.mutex);
  p.finished = true;
  p.changed.notify_all();
}

Sounds::Sounds(Milliseconds IdleTime, Milliseconds RetryTime) : player(std::make_shared<Player>(IdleTime, RetryTime)) {}

Sounds::~Sounds() { player->Stop(); }

void Sounds::Play(const QString& Path) { Player::Start(player, Path); }

bool Sounds::IsPlaying() const { return player->IsBusy(); }

std::optional<QByteArray> SoundWave(const QByteArray& File) {
  constexpr qsizetype RiffHeader = 12, ChunkHeader = 8, LeastFormat = 16;
  constexpr int MostChannels = 8;
  constexpr quint32 LowestRate = 1000, HighestRate = 384000;  // Hz

  const auto Number32 = [&File](qsizetype Place) { return qFromLittleEndian<quint32>(File.constData() + Place); };
  if (File.size() < RiffHeader || !File.startsWith("RIFF") || File.mid(8, 4) != "WAVE") return std::nullopt;
  bool FormatKnown = false;
  for (qsizetype Chunk = RiffHeader; Chunk + ChunkHeader <= File.size();) {
    const QByteArray Name = File.mid(Chunk, 4);
    const qsizetype Body = Chunk + ChunkHeader;
    const qsizetype Length = Number32(Chunk + 4);
    const qsizetype Room = File.size() - Body;
    if (Name == "data") {
      if (!FormatKnown || Length == 0 || Room == 0) return std::nullopt;
      const qsizetype Samples = std::min(Length, Room);
      QByteArray Wave = File.left(Body + Samples);
      qToLittleEndian(static_cast<quint32>(Samples), Wave.data() + Chunk + 4);
      qToLittleEndian(static_cast<quint32>(Wave.size() - 8), Wave.data() + 4);
      return Wave;
    }
    if (Name == "fmt ") {
      if (Length < LeastFormat || Length > Room) return std::nullopt;
      const int Channels = qFromLittleEndian<quint16>(File.constData() + Body + 2);
      const quint32 Rate = Number32(Body + 4);
      if (Channels < 1 || Channels > MostChannels || Rate < LowestRate || Rate > HighestRate) return std::nullopt;
      FormatKnown = true;
    }
    Chunk = Body + Length + Length % 2;
  }
  return std::nullopt;
}

}  // namespace blunko
