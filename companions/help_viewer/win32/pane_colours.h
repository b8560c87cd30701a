// The colours of the pane, according to the user's settings.
#pragma once

#include "help_viewer/pane_picture.h"
#include "ui/win32/colours.h"

namespace qdix::help_viewer::win32 {

/// Returns the current colours, with `background` as the background.
[[nodiscard]] Palette SystemPalette(ui::Colour background);

}  // namespace qdix::help_viewer::win32
