#include "storage/IniInfo.h"

#include <QFile>
#include <QList>

#include "storage/FileAccess.h"

namespace blunko {

namespace {

constexpr qint64 LargestFile = 1 << 20;  // bytes; an info file has some thousands
const QByteArray Section = "[Info]";

bool IsSection(const QByteArray& Line) { return Line.trimmed().startsWith('['); }
bool IsOurSection(const QByteArray& Line) { return Line.trimmed().compare(Section, Qt::CaseInsensitive) == 0; }

bool HoldsKey(const QByteArray& Line, const QByteArray& Key) {
  const qsizetype Equals = Line.indexOf('=');
  return Equals > 0 && Line.left(Equals).trimmed().compare(Key, Qt::CaseInsensitive) == 0;
}

/// Position of the first line of our section that holds the key; -1 when there is none. `End` becomes the place where a
/// new key belongs: behind the last written line of the section; -1 without a section.
qsizetype FindLine(const QList<QByteArray>& Lines, const QByteArray& Key, qsizetype* End = nullptr) {
  bool Inside = false;
  qsizetype Place = -1;
  for (qsizetype i = 0; i < Lines.size(); ++i) {
    if (IsSection(Lines[i])) {
      Inside = IsOurSection(Lines[i]) && Place < 0;
      if (Inside) Place = i + 1;
    } else if (Inside && HoldsKey(Lines[i], Key)) {
      return i;
    } else if (Inside && !Lines[i].trimmed().isEmpty()) {
      Place = i + 1;
    }
  }
  if (End != nullptr) *End = Place;
  return -1;
}

QList<QByteArray> LinesOf(QByteArray Text) {
  while (Text.startsWith("\xEF\xBB\xBF")) Text.remove(0, 3);
  return Text.split('\n');
}

bool IsQuoted(const QByteArray& Value) {
  return Value.size() >= 2 && Value.front() == Value.back() && (Value.front() == '"' || Value.front() == '\'');
}

/// A value whose ends a reader would strip is put into quotation marks.
QByteArray Coded(const QString& Value) {
  QByteArray Bytes = Value.toLatin1();
  for (char& Byte : Bytes) {
    if (Byte == '\n' || Byte == '\r' || Byte == '\0') Byte = ' ';
  }
  return Bytes != Bytes.trimmed() || IsQuoted(Bytes) ? '"' + Bytes + '"' : Bytes;
}

}  // namespace

QString IniInfo::FindValue(const QByteArray& Text, const QString& Key) {
  const QList<QByteArray> Lines = LinesOf(Text);
  const qsizetype Found = FindLine(Lines, Key.toLatin1());
  if (Found < 0) return {};
  QByteArray Value = Lines[Found].mid(Lines[Found].indexOf('=') + 1).trimmed();
  if (IsQuoted(Value)) Value = Value.mid(1, Value.size() - 2);
  return QString::fromLatin1(Value.left(LongestValue));
}

QByteArray IniInfo::WithValue(const QByteArray& Text, const QString& Key, const QString& Value) {
  QList<QByteArray> Lines = LinesOf(Text);
  const QByteArray LineEnd = Text.contains("\r\n") ? "\r" : "";
  const QByteArray Name = Key.toLatin1();
  qsizetype End = -1;
  const qsizetype Found = FindLine(Lines, Name, &End);
  if (Found >= 0) {
    const QByteArray& Old = Lines[Found];
    Lines[Found] = Old.left(Old.indexOf('=') + 1) + Coded(Value) + (Old.endsWith('\r') ? "\r" : "");
    return Lines.join('\n');
  }
  const QByteArray New = Name + '=' + Coded(Value) + LineEnd;
  if (End < 0) {
    if (Lines.back().isEmpty()) Lines.removeLast();
    Lines << Section + LineEnd << New << QByteArray();
  } else {
    Lines.insert(End, New);
    if (End == Lines.size() - 1) Lines << QByteArray();  // the last line had no end of its own
  }
  return Lines.join('\n');
}

QString IniInfo::ReadInfoValue(const QString& Key, const QString& Default) const {
  const QString Value = FindValue(ReadWholeFile(InfoPath, LargestFile).value_or(QByteArray()), Key);
  return Value.isEmpty() ? Default : Value;
}

void IniInfo::WriteInfoValue(const QString& Key, const QString& Value) const {
  const FileLock Lock(InfoPath);
  const auto Text = ReadWholeFile(InfoPath, LargestFile);
  if (!Text && QFile::exists(InfoPath)) return;  // not ours to replace
  ReplaceFile(InfoPath, WithValue(Text.value_or(QByteArray()), Key, Value));
}

}  // namespace blunko
