// The observer's notebook: one text, kept in one file.
#pragma once

namespace Frmnotes {

/// Wires the panel's events; part of the program's composition. The panel's load is fatal if the notes' file
/// is missing or has no first line.
void branche();

} // namespace Frmnotes
