// The font of the window and the dialog units that follow from it.
#pragma once

#include <string>

#include "ui/form.h"
#include "ui/win32/owned.h"

namespace qdix::ui::win32 {

/// A rectangle in pixels, relative to the window it stands in.
struct PixelBox {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// MS Sans Serif in 8 points at the screen's resolution, the dialog font of the time.
class DialogFont {
 public:
  DialogFont();

  [[nodiscard]] HFONT Get() const { return font_.get(); }
  /// Dialog units to pixels: a quarter of the average letter's width, an eighth of the font's height.
  [[nodiscard]] PixelBox Pixels(const Place& place) const;
  [[nodiscard]] int TextWidthPixels(const std::string& text) const;
  /// An inner size in pixels as the dialog units that fit into it.
  [[nodiscard]] FormSize Units(int width_px, int height_px) const;

 private:
  void Measure();

  OwnedGdiObject<HFONT> font_;
  int base_width_px_ = 6;
  int base_height_px_ = 13;
};

}  // namespace qdix::ui::win32
