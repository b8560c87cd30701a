// The colours of the pane, all from the user's settings.
#pragma once

#include "help_viewer/pane_picture.h"
#include "ui/win32/colours.h"

namespace qdix::help_viewer::win32 {

/// The colours of this moment, on a background of this colour word.
[[nodiscard]] Palette SystemPalette(ui::Colour background);

}  // namespace qdix::help_viewer::win32
