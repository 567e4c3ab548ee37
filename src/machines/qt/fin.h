// The end of the process, wished for or not.
#pragma once

#include "base/fatale.h"

#include <functional>

namespace plateforme::qt {

/// What runs at the end of the process, however it comes: closing a recording. Must not fail.
void a_la_fin(std::function<void()> f);

/// Runs what `a_la_fin` was given and ends the process, from inside any nesting; nothing is unwound.
[[noreturn]] void fin(int statut);

/// The handler of fatal failures: freezes the store, tells the observer in one box, ends with status 1. A
/// second failure meanwhile ends at once.
[[noreturn]] void echoue(base::cause c, const std::string& detail);

} // namespace plateforme::qt
