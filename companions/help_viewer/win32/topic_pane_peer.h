// The window of the pane: paints the topic and passes keys, wheel, scroll bar and mouse to the model.
#pragma once

#include <memory>

#include "help_viewer/topic_pane.h"
#include "os/win32/gdi_text_device.h"
#include "ui/win32/native_control.h"
#include "ui/win32/owned.h"

namespace qdix::help_viewer::win32 {

class TopicPanePeer final : public ui::win32::NativeControl {
 public:
  using ModelType = TopicPane;
  static constexpr ui::Kind kKind = ui::Kind::kOwn;

  TopicPanePeer(const ui::win32::PeerContext& context, TopicPane& model, HWND parent, int number);
  ~TopicPanePeer() override;

 private:
  LRESULT HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void ValueChanged() override;
  void CaptionChanged() override {}

  /// Returns true if the message needs no further handling.
  bool HandlePointer(UINT message, WPARAM wparam, LPARAM lparam);
  bool HandleKey(WPARAM key);
  [[nodiscard]] LRESULT DialogCode(LPARAM message);
  void ScrollBarMoved(UINT code);
  /// `turned` is in parts of a notch; positive is away from the user.
  void WheelTurned(int turned);
  [[nodiscard]] bool ShowHandCursor(LPARAM hit) const;
  void SizeChanged();
  void PaintWindow();
  void Draw(const RECT& part);
  void DrawFocus(int down_px) const;

  /// Can measure text at any time. Has a bitmap only while the window is painted.
  struct MemoryDevice {
    ui::win32::OwnedMemoryDevice device{CreateCompatibleDC(nullptr)};
    os::win32::GdiTextDevice text{device.get(), os::win32::kScreenFaces};
  };

  [[nodiscard]] HDC Device() const { return memory_->device.get(); }
  /// Makes the memory device for the current screen. The topic is laid out with it.
  void MakeMemoryDevice();

  TopicPane& pane_;
  UINT driver_wheel_message_;
  std::unique_ptr<MemoryDevice> memory_;
  int pressed_link_ = -1;
  /// Turn of the wheel that has not been scrolled yet.
  int wheel_rest_ = 0;
};

}  // namespace qdix::help_viewer::win32
