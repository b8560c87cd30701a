// The font of the window and the dialog units derived from it.
#pragma once

#include <string>

#include "ui/form.h"
#include "ui/win32/owned.h"

namespace qdix::ui::win32 {

/// A rectangle in pixels, relative to its parent window.
struct PixelBox {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// MS Sans Serif, 8 points at the screen's resolution: the dialog font of Windows 95.
class DialogFont {
 public:
  DialogFont();

  [[nodiscard]] HFONT Get() const { return font_.get(); }
  /// Converts dialog units to pixels: a quarter of the average letter width, an eighth of the font height.
  [[nodiscard]] PixelBox Pixels(const Place& place) const;
  [[nodiscard]] int TextWidthPixels(const std::string& text) const;
  /// Returns the dialog units that fit into an inner size in pixels.
  [[nodiscard]] FormSize Units(int width_px, int height_px) const;

 private:
  void Measure();

  OwnedGdiObject<HFONT> font_;
  int base_width_px_ = 6;
  int base_height_px_ = 13;
};

}  // namespace qdix::ui::win32
