#include "storage/IniInfo.h"

#include <QList>

#include <chrono>
#include <functional>
#include <optional>
#include <utility>

#include "storage/FileAccess.h"

using namespace std::chrono_literals;

namespace blunko {

namespace {

constexpr auto ClockStep = 20ms;  // the longest time in which the clock of a usual file system stands still
const QByteArray Section = "Info";
const QByteArray ByteOrderMark = "\xEF\xBB\xBF";

bool IsUtf8(const QByteArray& Text) { return Text.startsWith(ByteOrderMark); }

/// A comment may stand behind the bracket.
bool IsOurSection(const QByteArray& Line) {
  const QByteArray Name = Line.mid(Line.indexOf('[') + 1);
  return Name.left(Name.indexOf(']')).trimmed().compare(Section, Qt::CaseInsensitive) == 0;
}

/// Without an equals sign nothing is left, which is no key.
bool HoldsKey(const QByteArray& Line, const QByteArray& Key) {
  return Line.left(Line.indexOf('=')).trimmed().compare(Key, Qt::CaseInsensitive) == 0;
}

/// Where a key's value stands in the text; or, without a length, where a line for the key belongs: behind the last
/// written line of our section. Where there is no such section it is empty.
struct Spot {
  std::optional<qsizetype> At, Length;
};

Spot FindSpot(const QByteArray& Text, const QByteArray& Key) {
  Spot New;
  bool Inside = false;
  for (qsizetype From = IsUtf8(Text) ? ByteOrderMark.size() : 0, End = From; From < Text.size(); From = End) {
    const qsizetype LineEnd = Text.indexOf('\n', From);
    End = LineEnd < 0 ? Text.size() : LineEnd + 1;
    const QByteArray Line = Text.sliced(From, End - From);
    if (Line.trimmed().startsWith('[')) {
      Inside = IsOurSection(Line) && !New.At;
      if (Inside) New.At = End;
    } else if (Inside && HoldsKey(Line, Key)) {
      const qsizetype At = From + Line.indexOf('=') + 1;
      return {At, End - At - Line.endsWith('\n') - Line.endsWith("\r\n")};
    } else if (Inside && !Line.trimmed().isEmpty()) {
      New.At = End;
    }
  }
  return New;
}

bool IsQuoted(const QByteArray& Value) {
  return Value.size() >= 2 && Value.front() == Value.back() && (Value.front() == '"' || Value.front() == '\'');
}

/// A value whose ends a reader would strip is put into quotation marks.
QByteArray Coded(QByteArray Bytes) {
  for (char& Byte : Bytes) {
    if (Byte == '\n' || Byte == '\r' || Byte == '\0') Byte = ' ';
  }
  return Bytes != Bytes.trimmed() || IsQuoted(Bytes) ? '"' + Bytes + '"' : Bytes;
}

QByteArray FindBytes(const QByteArray& Text, const QString& Key) {
  const Spot Found = FindSpot(Text, Key.toLatin1());
  if (!Found.Length) return {};
  const QByteArray Value = Text.sliced(*Found.At, *Found.Length).trimmed();
  return IsQuoted(Value) ? Value.mid(1, Value.size() - 2) : Value;
}

QByteArray WithBytes(QByteArray Text, const QString& Key, const QByteArray& Value) {
  const QByteArray LineEnd = Text.contains("\r\n") ? "\r\n" : "\n";
  const auto [Found, Length] = FindSpot(Text, Key.toLatin1());
  if (Length) return Text.replace(*Found, *Length, Coded(Value));
  const qsizetype At = Found.value_or(Text.size());
  QByteArray Line = Key.toLatin1() + '=' + Coded(Value) + LineEnd;
  if (!Found) Line.prepend('[' + Section + ']' + LineEnd);
  const QByteArray Before = Text.first(At);
  const bool Open = !Before.isEmpty() && !Before.endsWith('\n') && Before != ByteOrderMark;
  return Text.insert(At, Open ? LineEnd + Line : Line);
}

/// What is written: its key, and how a text takes it in.
using Written = std::pair<QString, std::function<QByteArray(const QByteArray&)>>;

QByteArray WithAll(QByteArray Text, const QList<Written>& Values) {
  for (const auto& [Key, Into] : Values) Text = Into(Text);
  return Text;
}

}  // namespace

/// The file as this run knows it.
class IniInfo::File {
 public:
  explicit File(const QString& Path) : path(Path) {}
  ~File() { Save(); }
  Q_DISABLE_COPY_MOVE(File)

  const QByteArray& Text();
  void Write(const Written& Value);
  void Gather() { ++gathering; }
  void Release() {
    --gathering;
    Save();
  }

 private:
  void Save();
  std::optional<QByteArray> Load(bool Locked);

  const QString path;
  QByteArray text;
  FileStamp stamp;         ///< of the file whose text this is
  bool known = false;      ///< the text is still right while the stamp is the same
  QList<Written> unsaved;  ///< values that the file hasn't taken yet
  int gathering = 0;
  bool toldUnsaved = false;
};

QString IniInfo::FindValue(const QByteArray& Text, const QString& Key) {
  const QByteArray Bytes = FindBytes(Text, Key);
  return (IsUtf8(Text) ? QString::fromUtf8(Bytes) : QString::fromLatin1(Bytes)).left(LongestValue);
}

QByteArray IniInfo::WithValue(const QByteArray& Text, const QString& Key, const QString& Value) {
  const QString Short = Value.left(LongestValue);
  return WithBytes(Text, Key, IsUtf8(Text) ? Short.toUtf8() : Short.toLatin1());
}

IniInfo::IniInfo(const QString& Path) : InfoPath(Path), file(std::make_shared<File>(Path)) {}

QString IniInfo::ReadInfoValue(const QString& Key, const QString& Default) const {
  const QString Value = FindValue(file->Text(), Key);
  return Value.isEmpty() ? Default : Value;
}

void IniInfo::WriteInfoValue(const QString& Key, const QString& Value) const {
  file->Write({Key, [=](const QByteArray& Text) { return WithValue(Text, Key, Value); }});
}

QByteArray IniInfo::ReadInfoPath(const QString& Key, const QByteArray& Default) const {
  const QByteArray Path = FindBytes(file->Text(), Key).left(LongestValue);
  return Path.isEmpty() ? Default : Path;
}

void IniInfo::WriteInfoPath(const QString& Key, const QByteArray& Path) const {
  if (Path.size() > LongestValue) return;
  file->Write({Key, [=](const QByteArray& Text) { return WithBytes(Text, Key, Path); }});
}

WrittenTogether::WrittenTogether(const IniInfo& Info) : file(Info.file) { file->Gather(); }
WrittenTogether::~WrittenTogether() { file->Release(); }

const QByteArray& IniInfo::File::Text() {
  const FileStamp Now = StampOf(path);
  if (known && Now == stamp) return text;
  text = WithAll(Load(false).value_or(QByteArray()), unsaved);
  stamp = Now;
  // What was read the moment after it changed may change once more and look the same.
  known = std::chrono::system_clock::now().time_since_epoch() - Now.Changed > ClockStep;
  return text;
}

void IniInfo::File::Write(const Written& Value) {
  unsaved.removeIf([&Value](const Written& Old) { return Old.first.compare(Value.first, Qt::CaseInsensitive) == 0; });
  unsaved << Value;
  known = false;
  Save();
}

void IniInfo::File::Save() {
  if (gathering > 0 || unsaved.isEmpty()) return;
  const FileLock Lock(path);
  if (const auto Old = Lock.IsHeld() ? Load(true) : std::nullopt) {
    const QByteArray New = WithAll(*Old, unsaved);
    if (New == *Old || (New.size() <= LargestFile && ReplaceFile(path, New))) return unsaved.clear();
  }
  TellUnsaved(path, toldUnsaved);
}

/// What the file holds: an empty text without one, nothing when it may be good but can't be had. What can't be an info
/// file is moved away, under the lock.
std::optional<QByteArray> IniInfo::File::Load(bool Locked) {
  FileState State = FileState::Whole;
  auto Bytes = ReadWholeFile(path, LargestFile, &State);
  if (Bytes && !Bytes->contains('\0')) return Bytes;
  if (State == FileState::Unreadable) return std::nullopt;
  if (State == FileState::Missing) return QByteArray("");
  if (Locked) return SetAside(path, "settings") ? std::optional<QByteArray>("") : std::nullopt;
  const FileLock Lock(path);
  return Lock.IsHeld() ? Load(true) : std::nullopt;
}

}  // namespace blunko
