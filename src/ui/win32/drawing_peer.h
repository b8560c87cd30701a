// The window of a drawing control, which shows a canvas that keeps the picture.
#pragma once

#include <optional>

#include "ui/win32/bitmap_canvas.h"
#include "ui/win32/native_control.h"

namespace qdix::ui::win32 {

class DrawingPeer final : public NativeControl {
 public:
  using ModelType = DrawingControl;
  static constexpr Kind kKind = Kind::kDrawing;

  DrawingPeer(const PeerContext& context, DrawingControl& model, HWND parent, int number);
  ~DrawingPeer() override;

 private:
  LRESULT HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  [[nodiscard]] bool TakesKeyboard() const override { return false; }
  void PixelsChanged() override;
  void BorderChanged() override;
  void CaptionChanged() override {}
  void Show();
  /// Makes a canvas of the window's current inner size and has the control draw everything on it.
  void MakeCanvas();

  DrawingControl& drawing_;
  std::optional<BitmapCanvas> canvas_;
};

}  // namespace qdix::ui::win32
