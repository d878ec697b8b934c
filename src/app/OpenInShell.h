#pragma once

#include <QString>

namespace blunko {

/// Hands a web or mail address to the system's default program; nobody looks at the result.
void OpenInShell(const QString& Target);

}  // namespace blunko
