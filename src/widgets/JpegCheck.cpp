#include "widgets/JpegCheck.h"

#include <QtEndian>

#include <algorithm>

namespace blunko {

namespace {

constexpr qint64 MostWork = 400'000'000;            // pixels, as often as they are gone through
constexpr qint64 MostKept = 120 << 20;              // bytes that are kept of a picture of several scans until its last
constexpr qint64 LargestOfSeveralScans = 12 << 20;  // bytes of the file

/// What the markers of a picture tell of the work that it makes.
struct Work {
  qint64 Pixels, Scans;
  qint64 Kept;  ///< bytes of the decoder, if it has to keep all of it
  bool Progressive;
};

bool IsFrame(int Marker) {
  return Marker >= 0xC0 && Marker <= 0xCF && Marker != 0xC4 && Marker != 0xC8 && Marker != 0xCC;
}

/// `Frame`: what stands behind the length of its marker.
void ReadFrame(const QByteArray& Frame, Work& Found) {
  const auto At = [&Frame](qsizetype i) { return i < Frame.size() ? static_cast<uchar>(Frame[i]) : 0; };
  Found.Pixels = (At(1) << 8 | At(2)) * static_cast<qint64>(At(3) << 8 | At(4));
  int Most = 1, Sum = 0;  // samples of a component within a unit of the picture
  for (int i = 0; i < At(5); ++i) {
    const int Samples = (At(7 + 3 * i) >> 4) * (At(7 + 3 * i) & 15);
    Most = std::max(Most, Samples);
    Sum += Samples;
  }
  Found.Kept = Found.Pixels * Sum / Most * static_cast<qint64>(sizeof(short));
}

Work ReadMarkers(const QByteArray& File) {
  Work Found{};
  for (qsizetype At = 2; (At = File.indexOf('\xFF', At)) >= 0 && At + 4 <= File.size();) {
    const int Marker = static_cast<uchar>(File[At + 1]);
    if (Marker == 0xD9) break;  // the picture's end
    if (Marker == 0xFF) {
      ++At;  // a filler
    } else if (Marker <= 0x01 || (Marker >= 0xD0 && Marker <= 0xD8)) {
      At += 2;  // inside a scan
    } else {
      const int Length = qFromBigEndian<quint16>(File.constData() + At + 2);
      if (IsFrame(Marker)) {
        if (Found.Pixels != 0) return {};  // a picture has one: which of them is meant?
        ReadFrame(File.mid(At + 4, Length), Found);
        Found.Progressive = (Marker & 3) == 2;
      }
      if (Marker == 0xDA) ++Found.Scans;
      At += 2 + Length;
    }
  }
  return Found;
}

}  // namespace

bool IsModestJpeg(const QByteArray& File) {
  if (!File.startsWith("\xFF\xD8\xFF") || File.size() > LargestJpeg) return false;
  const Work Found = ReadMarkers(File);
  if (Found.Pixels == 0 || Found.Scans == 0 || Found.Pixels * Found.Scans > MostWork) return false;
  const bool Several = Found.Progressive || Found.Scans > 1;
  return !Several || (Found.Kept <= MostKept && File.size() <= LargestOfSeveralScans);
}

}  // namespace blunko
