#include "storage/RollerLists.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

#include "storage/NameRule.h"

namespace blunko {

namespace {

const QString LineEnd = QStringLiteral("\r\n");

const char DefaultEntries[] =
    "Tam¤1500|Irene¤1450|Marlo¤1400|Georgiana¤1350|Bea¤1300|"
    "Rosa¤1250|Hugo¤1200|Philipa¤1150|Otis¤1100|Vivianne¤1050|"
    "Irene¤1500|Tam¤1450|Marlo¤1400|Vivianne¤1350|Otis¤1300|"
    "Philipa¤1250|Hugo¤1200|Rosa¤1150|Bea¤1100|Georgiana¤1050|";

std::optional<HighRoller> EntryOf(const QString& Line) {
  static const QRegularExpression Form(QStringLiteral("\\A([^%1]*)%1([0-9]{1,5})\\z").arg(FieldSeparator));
  const QRegularExpressionMatch Found = Form.match(Line);
  bool Fits = false;
  const short Score = Found.captured(2).toShort(&Fits);
  return Fits ? std::optional<HighRoller>({Found.captured(1), Score}) : std::nullopt;
}

}  // namespace

std::optional<int> PlaceFor(const RollerList& List, std::int16_t Score) {
  const auto Beaten =
      std::find_if(List.begin(), List.end(), [Score](const HighRoller& Entry) { return Score > Entry.Score; });
  if (Beaten == List.end()) return std::nullopt;
  return static_cast<int>(Beaten - List.begin());
}

void Insert(RollerList& List, const HighRoller& Entry) {
  const auto Place = PlaceFor(List, Entry.Score);
  if (!Place) return;
  std::rotate(List.begin() + *Place, List.end() - 1, List.end());
  List[static_cast<std::size_t>(*Place)] = Entry;
}

RollerLists RollerLists::Default() {
  return OfText(QString::fromUtf8(DefaultEntries).replace(QLatin1Char('|'), LineEnd).toLatin1())
      .value_or(RollerLists());
}

std::optional<RollerLists> RollerLists::OfText(const QByteArray& Text) {
  const QStringList Lines = QString::fromLatin1(Text).split(LineEnd);
  RollerLists Read;
  // Behind the last line end stands an empty piece: without it the text has been cut.
  const auto Entries = static_cast<qsizetype>(Read.lstHSTS.size() + Read.lstBMoV.size());
  if (Lines.size() != Entries + 1 || !Lines.back().isEmpty()) return std::nullopt;
  qsizetype Next = 0;
  for (RollerList* List : {&Read.lstHSTS, &Read.lstBMoV}) {
    for (HighRoller& Entry : *List) {
      auto Found = EntryOf(Lines[Next++]);
      if (!Found) return std::nullopt;
      Entry = std::move(*Found);
    }
  }
  return Read;
}

QByteArray RollerLists::Text() const {
  QString Text;
  for (const RollerList* List : {&lstHSTS, &lstBMoV}) {
    for (const HighRoller& Entry : *List) Text += Entry.Name + FieldSeparator + QString::number(Entry.Score) + LineEnd;
  }
  return Text.toLatin1();
}

QByteArray ScrambleText(QByteArray Text) {
  for (char& Byte : Text) {
    const int Moved = static_cast<unsigned char>(Byte) + 128;
    Byte = static_cast<char>(Moved > 255 ? Moved - 255 : Moved);
  }
  return Text;
}

QByteArray UnscrambleText(QByteArray Text) {
  for (char& Byte : Text) {
    const int Moved = static_cast<unsigned char>(Byte) - 128;
    Byte = static_cast<char>(Moved < 0 ? Moved + 255 : Moved);
  }
  return Text;
}

}  // namespace blunko
