#pragma once

namespace blunko {

/// Gives what is painted on the table its place in the tree that screen readers walk: dice are buttons, the pad is a
/// list of seats, a group has a name, and decoration isn't there. Installed once, before the first window.
void InstallAccessibility();

}  // namespace blunko
