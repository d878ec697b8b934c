// Feeds the readers of the two files with damaged text, and holds them to what must be true of any text. Built with
// clang's libFuzzer where TBK_FUZZ is on, else with the plain driver below.

#include <QByteArrayList>
#include <QString>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "storage/IniInfo.h"
#include "storage/RollerLists.h"

using blunko::IniInfo, blunko::RollerLists, blunko::ScrambleText, blunko::UnscrambleText;

static void Holds(bool Truth, const char* What, const QByteArray& Text) {
  if (Truth) return;
  std::fprintf(stderr, "untrue: %s, of the text (hexadecimal) %s\n", What, Text.toHex().constData());
  std::abort();
}

/// A key that is written holds its value, changes no other key, and is written once.
static void CheckInfo(const QByteArray& Text) {
  const QString Keys[] = {"DieColor", "Background", "New"};
  for (const QString& Key : Keys) {
    for (const QString& Value : {QString(), QStringLiteral(" \"blank\" ends "), QStringLiteral("\"quoted\""),
                                 QStringLiteral("'\n[a]=b\r"), QString::fromLatin1(Text)}) {
      const QByteArray Written = IniInfo::WithValue(Text, Key, Value);
      QString Expected = Value.left(IniInfo::LongestValue);
      for (const char16_t Letter : {u'\n', u'\r', u'\0'}) Expected.replace(Letter, ' ');
      Holds(IniInfo::FindValue(Written, Key) == Expected, "a written value is read", Text);
      for (const QString& Other : Keys) {
        Holds(Other == Key || IniInfo::FindValue(Written, Other) == IniInfo::FindValue(Text, Other), "others stay",
              Text);
      }
    }
  }
}

/// Lists that are read are written back as what is read again; every text survives the scrambling but for its last
/// letter.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
  const QByteArray File(reinterpret_cast<const char*>(Data), static_cast<qsizetype>(Size));
  CheckInfo(File);
  const QByteArray Text = UnscrambleText(File);
  Holds(UnscrambleText(ScrambleText(Text)) == Text, "scrambling can be undone", Text);
  Holds(!ScrambleText(Text).contains('\0'), "no scrambled letter is 0", Text);
  const auto Lists = RollerLists::OfText(Text);
  Holds(!Lists || RollerLists::OfText(Lists->Text()) == Lists, "written lists are read", Text);
  return 0;
}

#ifndef TBK_LIBFUZZER

#include <chrono>
#include <random>

/// file_readers_fuzz [seconds [seed]]: mutates sound files for that long.
int main(int argc, char** argv) {
  const QByteArray Seeds[] = {
      "[Info]\r\nDieColor=112\r\n; a remark\r\nBackground=\"/a b/c.jpg\"\r\n\r\n[Other]\r\nDieColor=1\r\n",
      "\xEF\xBB\xBF[info]\ndiecolor = 7\nScanned=True\n[Info]\nNew=2", ScrambleText(RollerLists::Default().Text())};
  QByteArrayList Pieces = QByteArray("|[Info]|]=|\"|'|\r\n|\n|\r|DieColor|\xEF\xBB\xBF|\xA4").split('|');
  Pieces << ScrambleText("\xA4") << ScrambleText("9\r\n");
  std::mt19937 Random(argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1);
  const auto Below = [&](qsizetype Bound) { return static_cast<qsizetype>(Random() % static_cast<unsigned>(Bound)); };
  const auto End = std::chrono::steady_clock::now() + std::chrono::seconds(argc > 1 ? std::atoi(argv[1]) : 5);
  while (std::chrono::steady_clock::now() < End) {
    QByteArray Text = Seeds[Below(std::size(Seeds))];
    for (qsizetype Changes = Below(6); Changes > 0; --Changes) {
      const QByteArray News[] = {Pieces[Below(Pieces.size())], QByteArray(1, static_cast<char>(Random())),
                                 Text.mid(Below(Text.size() + 1), Below(60))};
      Text.replace(Below(Text.size() + 1), Below(20), News[Below(3)]);
    }
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(Text.data()), static_cast<std::size_t>(Text.size()));
  }
}

#endif
