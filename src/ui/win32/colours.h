// Converts the program's colours for Windows.
#pragma once

#include "ui/control.h"
#include "ui/win32/owned.h"

namespace qdix::ui::win32 {

inline constexpr Colour kSystemColourFlag = 0x80000000U;

/// Returns the colour to draw with now. System colours follow the user's settings.
[[nodiscard]] inline COLORREF ResolveColour(Colour colour) {
  if ((colour & kSystemColourFlag) != 0) return GetSysColor(static_cast<int>(colour & 0xFFU));
  return colour & 0x00FFFFFFU;
}

/// A brush for a colour. Uses the system's brush for a system colour; otherwise makes one and keeps it until
/// the colour changes.
class BackgroundBrush {
 public:
  [[nodiscard]] HBRUSH For(Colour colour) {
    if ((colour & kSystemColourFlag) != 0) return GetSysColorBrush(static_cast<int>(colour & 0xFFU));
    if (brush_ == nullptr || colour_ != colour) {
      brush_.reset(CreateSolidBrush(ResolveColour(colour)));
      colour_ = colour;
    }
    return brush_.get();
  }

 private:
  OwnedGdiObject<HBRUSH> brush_;
  Colour colour_ = 0;
};

}  // namespace qdix::ui::win32
