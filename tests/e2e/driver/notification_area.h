// The notification area as the taskbar shows it, with one icon in it. Wine's icons have no windows of their
// own: the taskbar draws them, starting at its right end.
#pragma once

#include <string>

#include "tests/e2e/driver/hand.h"

namespace qdix::e2e {

/// True while the screen shows an icon there.
[[nodiscard]] bool IconIsDrawn();

/// Moves the pointer onto the icon from beside it: a pointer that is already there does not notify the icon.
[[nodiscard]] bool PointAtIcon();
[[nodiscard]] bool PressIcon(Press press);

/// Returns the text of the open tip, or an empty text if none is open.
[[nodiscard]] std::string IconTip();

}  // namespace qdix::e2e
