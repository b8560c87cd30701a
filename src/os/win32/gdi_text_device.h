// Draws text on a GDI device. Creates each font when it is first needed.
#pragma once

#include <windows.h>

#include <vector>

#include "os/text_device.h"

namespace qdix::os::win32 {

/// The fonts for a kind of device, and their size in percent of the requested size.
struct Faces {
  const char* proportional;
  const char* fixed;
  int percent;
};
/// On screens, the standard dialog font of Windows 95, which is a bitmap font. On printers, scalable fonts in
/// its place, larger because 8-point letters are small on paper.
inline constexpr Faces kScreenFaces{"MS Sans Serif", "Courier New", 100};
inline constexpr Faces kPaperFaces{"Arial", "Courier New", 125};

class GdiTextDevice final : public TextDevice {
 public:
  /// The device must outlive this object.
  GdiTextDevice(HDC device, const Faces& faces);
  GdiTextDevice(const GdiTextDevice&) = delete;
  GdiTextDevice& operator=(const GdiTextDevice&) = delete;
  ~GdiTextDevice();

  [[nodiscard]] int GetTextExtentPoint32A(const FontLook& look, std::string_view text) override;
  [[nodiscard]] FontHeight GetTextMetricsA(const FontLook& look) override;
  void TextOutA(int left_px, int top_px, const FontLook& look, std::uint32_t colour,
                std::string_view text) override;
  void FillRect(int left_px, int top_px, int width_px, int height_px, std::uint32_t colour) override;

  /// Call this for each new page: the device has then lost its font.
  void PageStarted() { selected_ = nullptr; }

 private:
  struct CachedFont {
    FontLook look;
    HFONT font;
  };

  void Select(const FontLook& look);
  [[nodiscard]] HFONT FontOf(const FontLook& look);

  HDC device_;
  const Faces& faces_;
  HGDIOBJ first_;
  HFONT selected_ = nullptr;
  std::vector<CachedFont> fonts_;
};

}  // namespace qdix::os::win32
