// The notification area as the taskbar shows it, with one icon in it. Wine's icons are no windows of their
// own: the taskbar draws them, from its right end on.
#pragma once

#include <string>

#include "tests/e2e/driver/hand.h"

namespace qdix::e2e {

/// True while the screen shows an icon there.
[[nodiscard]] bool IconIsDrawn();

/// Moves the pointer from beside the icon on it: one that is there already and stays tells the icon nothing.
[[nodiscard]] bool PointAtIcon();
[[nodiscard]] bool PressIcon(Press press);

/// The text of the tip that is open; empty when none is.
[[nodiscard]] std::string IconTip();

}  // namespace qdix::e2e
