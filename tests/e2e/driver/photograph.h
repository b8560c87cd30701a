// Pictures of the whole screen, and the colours of its pixels.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>

namespace qdix::e2e {

/// Writes build/photos/NAME.png, or build/photos/$QDIX_PHOTOS/NAME.png; returns false if no picture could be
/// taken.
[[nodiscard]] bool Photograph(const std::string& name);

/// Returns what the user sees in this part of the screen, line by line, three bytes per pixel: red, green,
/// blue. Empty if the pixels could not be read.
[[nodiscard]] std::string ScreenPixels(const RECT& part);

/// Returns the colour that the user sees at this position, whichever window it belongs to; CLR_INVALID if it
/// could not be read.
[[nodiscard]] COLORREF ScreenColour(POINT place);

}  // namespace qdix::e2e
