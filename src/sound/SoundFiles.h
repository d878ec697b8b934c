#pragma once

#include <QString>

namespace blunko {

/// Writes a resource of the kind "CUSTOM" over the start of the file at `Path`; a file that isn't there is made, one
/// that begins with the same bytes is left alone. The result is 0, or another number for an error. Only a plain file is
/// written to, and none by way of a link.
int ExtractResource(int Id, const QString& Kind, const QString& Path);

/// Puts all sounds of the program into the folder, whose name ends with its separator; none without a folder. What
/// can't be written stays silent.
void ExtractSounds(const QString& Folder);

}  // namespace blunko
