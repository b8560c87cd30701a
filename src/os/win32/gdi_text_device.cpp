#include "os/win32/gdi_text_device.h"

#include <algorithm>

namespace qdix::os::win32 {

namespace {

constexpr int kPointsPerInch = 72;

/// Limits a text to the number of characters that Windows 95 draws and measures in one call.
int Length(std::string_view text) {
  constexpr std::size_t kMaxCharacters = 8191;
  return static_cast<int>(std::min(text.size(), kMaxCharacters));
}

}  // namespace

GdiTextDevice::GdiTextDevice(HDC device, const Faces& faces)
    : device_(device), faces_(faces), first_(GetCurrentObject(device, OBJ_FONT)) {}

GdiTextDevice::~GdiTextDevice() {
  // A selected font cannot be deleted.
  SelectObject(device_, first_);
  for (const CachedFont& made : fonts_) DeleteObject(made.font);
}

HFONT GdiTextDevice::FontOf(const FontLook& look) {
  for (const CachedFont& made : fonts_) {
    if (made.look == look) return made.font;
  }
  const int height =
      MulDiv(look.points * faces_.percent, GetDeviceCaps(device_, LOGPIXELSY), kPointsPerInch * 100);
  const DWORD pitch = look.is_fixed ? FIXED_PITCH | FF_MODERN : DEFAULT_PITCH | FF_SWISS;
  HFONT const font = CreateFontA(-height, 0, 0, 0, look.is_bold ? FW_BOLD : FW_NORMAL, FALSE,
                                 look.is_underlined ? TRUE : FALSE, FALSE, DEFAULT_CHARSET,
                                 OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, pitch,
                                 look.is_fixed ? faces_.fixed : faces_.proportional);
  if (font != nullptr) fonts_.push_back({look, font});
  return font;
}

/// Keeps the current font if there is no such font.
void GdiTextDevice::Select(const FontLook& look) {
  HFONT const font = FontOf(look);
  if (font == nullptr || font == selected_) return;
  SelectObject(device_, font);
  selected_ = font;
}

int GdiTextDevice::GetTextExtentPoint32A(const FontLook& look, std::string_view text) {
  Select(look);
  SIZE size{};
  return ::GetTextExtentPoint32A(device_, text.data(), Length(text), &size) != 0 ? static_cast<int>(size.cx)
                                                                                 : 0;
}

FontHeight GdiTextDevice::GetTextMetricsA(const FontLook& look) {
  Select(look);
  TEXTMETRICA metrics{};
  if (::GetTextMetricsA(device_, &metrics) == 0) return {};
  return {.line_px = static_cast<int>(metrics.tmHeight), .ascent_px = static_cast<int>(metrics.tmAscent)};
}

void GdiTextDevice::TextOutA(int left_px, int top_px, const FontLook& look, std::uint32_t colour,
                             std::string_view text) {
  Select(look);
  SetBkMode(device_, TRANSPARENT);
  SetTextColor(device_, colour);
  ::TextOutA(device_, left_px, top_px, text.data(), Length(text));
}

void GdiTextDevice::FillRect(int left_px, int top_px, int width_px, int height_px, std::uint32_t colour) {
  const RECT box{left_px, top_px, left_px + width_px, top_px + height_px};
  SetBkColor(device_, colour);
  ExtTextOutA(device_, 0, 0, ETO_OPAQUE, &box, nullptr, 0, nullptr);  // fills without creating a brush
}

}  // namespace qdix::os::win32
