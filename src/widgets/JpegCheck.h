#pragma once

#include <QByteArray>

namespace blunko {

/// Whether the bytes are a JPEG picture that is decoded within a second and 200 MB. Looks at its markers alone: the
/// same few bytes may stand for a billion pixels, or for one picture drawn a thousand times over.
bool IsModestJpeg(const QByteArray& File);

/// Size of the largest file that can be one, in bytes.
inline constexpr qint64 LargestJpeg = 32 << 20;

}  // namespace blunko
