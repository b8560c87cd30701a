// Pictures of the whole screen, and the colour of one of its pixels.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>

namespace qdix::e2e {

/// Leaves build/photos/NAME.png, or build/photos/$QDIX_PHOTOS/NAME.png; false when no picture could be taken.
[[nodiscard]] bool Photograph(const std::string& name);

/// What a user sees in this part of the screen, three bytes a pixel, line by line: red, green, blue. Empty
/// when that could not be found out.
[[nodiscard]] std::string ScreenPixels(const RECT& part);

/// What a user sees at this place, whichever window it belongs to; CLR_INVALID when that could not be found
/// out.
[[nodiscard]] COLORREF ScreenColour(POINT place);

}  // namespace qdix::e2e
