#pragma once

#include <QString>

namespace blunko {

/// The sounds that travel inside the program bear these numbers.
inline constexpr int FirstSound = 101, LastSound = 109;

/// Name of the file that sound `Id` is written to, in the temporary folder; empty for any other number.
QString FileOfSound(int Id);

/// Writes a resource of the kind "CUSTOM" over the start of the file at `Path`; a file that isn't there is made. The
/// result is 0, or the number of the system's error. Only a plain file is written to, and none by way of a link.
int ExtractResource(int Id, const QString& Kind, const QString& Path);

}  // namespace blunko
