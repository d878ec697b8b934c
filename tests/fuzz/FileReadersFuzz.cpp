// Feeds the readers of the two files with damaged text, and holds them to what must be true of any text. Built with
// clang's libFuzzer where TBK_FUZZ is on, else with the plain driver below.

#include <QByteArrayList>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "storage/HighRollers.h"
#include "storage/IniInfo.h"

namespace blunko {

namespace {

void Holds(bool Truth, const char* What, const QByteArray& Text) {
  if (Truth) return;
  std::fprintf(stderr, "untrue: %s, of the text (hexadecimal) %s\n", What, Text.toHex().constData());
  std::abort();
}

/// A key that is written holds its value, changes no other key, and is written once.
void CheckInfo(const QByteArray& Text) {
  const QString Keys[] = {QStringLiteral("DieColor"), QStringLiteral("Background"), QStringLiteral("New")};
  const QString Values[] = {QStringLiteral("112"), QStringLiteral(" \"blank\" ends "),
                            QString::fromLatin1(Text.left(40)), QString()};
  for (const QString& Key : Keys) {
    Holds(IniInfo::FindValue(Text, Key).size() <= IniInfo::LongestValue, "a value has an end", Text);
    for (const QString& Value : Values) {
      const QByteArray Written = IniInfo::WithValue(Text, Key, Value);
      QString Expected = Value;
      for (QChar& Letter : Expected) {
        if (Letter == QLatin1Char('\n') || Letter == QLatin1Char('\r') || Letter.isNull()) Letter = QLatin1Char(' ');
      }
      Holds(IniInfo::FindValue(Written, Key) == Expected, "a written value is read", Text);
      for (const QString& Other : Keys) {
        Holds(Other == Key || IniInfo::FindValue(Written, Other) == IniInfo::FindValue(Text, Other),
              "other keys keep their values", Text);
      }
    }
  }
}

/// Lists that are read are written back as what is read again; every text survives the scrambling but for its last
/// letter.
void CheckLists(const QByteArray& File) {
  const QByteArray Text = UnscrambleText(File);
  Holds(UnscrambleText(ScrambleText(Text)) == Text, "scrambling can be undone", Text);
  const auto Lists = RollerLists::OfText(Text);
  if (!Lists) return;
  const QByteArray Written = Lists->Text();
  Holds(RollerLists::OfText(Written) == Lists, "written lists are read", Text);
  Holds(Written.size() <= Text.size(), "nothing is added", Text);  // zeros before a score go
}

}  // namespace

}  // namespace blunko

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
  const QByteArray Text(reinterpret_cast<const char*>(Data), static_cast<qsizetype>(Size));
  blunko::CheckInfo(Text);
  blunko::CheckLists(Text);
  return 0;
}

#ifndef TBK_LIBFUZZER

#include <chrono>
#include <random>

/// file_readers_fuzz [seconds [seed]]: mutates sound files for that long.
int main(int argc, char** argv) {
  const int Seconds = argc > 1 ? std::atoi(argv[1]) : 5;
  const unsigned Seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1;
  const QByteArray Seeds[] = {
      "[Info]\r\nDieColor=112\r\n; a remark\r\nBackground=\"/a b/c.jpg\"\r\n\r\n[Other]\r\nDieColor=1\r\n",
      "\xEF\xBB\xBF[info]\ndiecolor = 7\nScanned=True\n[Info]\nNew=2",
      blunko::ScrambleText(blunko::RollerLists::Default().Text()),
  };
  QByteArrayList Pieces = QByteArray("[Info]|]=|\"|'|\r\n|\n|\r|DieColor|\xEF\xBB\xBF|\xA4").split('|');
  Pieces << blunko::ScrambleText("\xA4") << blunko::ScrambleText("9\r\n");
  std::mt19937 Random(Seed);
  const auto Below = [&](qsizetype Bound) { return static_cast<qsizetype>(Random() % static_cast<unsigned>(Bound)); };
  const auto End = std::chrono::steady_clock::now() + std::chrono::seconds(Seconds);
  long Runs = 0;
  for (; std::chrono::steady_clock::now() < End; ++Runs) {
    QByteArray Text = Seeds[Below(std::size(Seeds))];
    for (qsizetype Changes = Below(6); Changes > 0; --Changes) {
      const qsizetype Place = Below(Text.size() + 1);
      switch (Below(5)) {
        case 0: Text.insert(Place, Pieces[Below(Pieces.size())]); break;
        case 1: Text.remove(Place, 1 + Below(20)); break;
        case 2: Text.insert(Place, Text.mid(Below(Text.size() + 1), Below(60))); break;
        case 3: Text.truncate(Place); break;
        default:
          if (Place < Text.size()) Text[Place] = static_cast<char>(Random());
      }
    }
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(Text.constData()),
                           static_cast<std::size_t>(Text.size()));
  }
  std::printf("%ld texts, seed %u\n", Runs, Seed);
  return Runs > 0 ? 0 : 1;
}

#endif
