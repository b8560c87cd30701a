#include "ui/win32/dialog_font.h"

#include <algorithm>
#include <string_view>

namespace qdix::ui::win32 {

namespace {

constexpr int kPoints = 8;
constexpr int kPointsPerInch = 72;
constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

}  // namespace

DialogFont::DialogFont() {
  const ScreenDevice screen;
  font_.reset(CreateFontA(-MulDiv(kPoints, GetDeviceCaps(screen.Get(), LOGPIXELSY), kPointsPerInch), 0, 0, 0,
                          FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                          CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_SWISS, "MS Sans Serif"));
  Measure();
}

/// Measures as Windows does for its own dialogs, so a place has the same size in pixels as in a dialog.
void DialogFont::Measure() {
  const ScreenDevice screen;
  HGDIOBJ const former = SelectObject(screen.Get(), font_.get());
  SIZE letters{};
  TEXTMETRICA metrics{};
  if (GetTextExtentPoint32A(screen.Get(), kLetters.data(), static_cast<int>(kLetters.size()), &letters) !=
          0 &&
      GetTextMetricsA(screen.Get(), &metrics) != 0) {
    base_width_px_ = static_cast<int>((letters.cx / 26 + 1) / 2);
    base_height_px_ = static_cast<int>(metrics.tmHeight);
  }
  SelectObject(screen.Get(), former);
}

PixelBox DialogFont::Pixels(const Place& place) const {
  return {MulDiv(place.left, base_width_px_, 4), MulDiv(place.top, base_height_px_, 8),
          MulDiv(place.width, base_width_px_, 4), MulDiv(place.height, base_height_px_, 8)};
}

int DialogFont::TextWidthPixels(const std::string& text) const {
  const ScreenDevice screen;
  HGDIOBJ const former = SelectObject(screen.Get(), font_.get());
  SIZE size{};
  GetTextExtentPoint32A(screen.Get(), text.c_str(), static_cast<int>(text.size()), &size);
  SelectObject(screen.Get(), former);
  return static_cast<int>(size.cx);
}

/// Clamps each dimension to the range of the model.
FormSize DialogFont::Units(int width_px, int height_px) const {
  constexpr int kMaxUnits = 0x7FFF;
  return {static_cast<std::int16_t>(std::clamp(width_px * 4 / base_width_px_, 0, kMaxUnits)),
          static_cast<std::int16_t>(std::clamp(height_px * 8 / base_height_px_, 0, kMaxUnits))};
}

}  // namespace qdix::ui::win32
