// The window of the pane: paints the topic, and hands keys, wheel, scroll bar and pointer to the model.
#pragma once

#include <memory>

#include "help_viewer/topic_pane.h"
#include "os/win32/gdi_text_device.h"
#include "ui/win32/native_control.h"
#include "ui/win32/owned.h"

namespace qdix::help_viewer::win32 {

class TopicPanePeer final : public ui::win32::NativeControl {
 public:
  TopicPanePeer(const ui::win32::PeerContext& context, TopicPane& model, HWND parent, int number);
  ~TopicPanePeer() override;

 private:
  LRESULT HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void ValueChanged() override;
  void CaptionChanged() override {}

  /// True where the message needs nothing more.
  bool HandlePointer(UINT message, WPARAM wparam, LPARAM lparam);
  bool HandleKey(WPARAM key);
  [[nodiscard]] LRESULT DialogCode(LPARAM message);
  void ScrollBarMoved(UINT code);
  /// In parts of a notch, away from the user positive.
  void WheelTurned(int turned);
  [[nodiscard]] bool ShowHand(LPARAM hit) const;
  void SizeChanged();
  void PaintWindow();
  void Draw(const RECT& part);
  void DrawFocus(int down_px) const;

  /// Measures at any time; has a bitmap only while the window is painted.
  struct MemoryDevice {
    ui::win32::OwnedMemoryDevice device{CreateCompatibleDC(nullptr)};
    os::win32::GdiTextDevice text{device.get(), os::win32::kScreenFaces};
  };

  [[nodiscard]] HDC Device() const { return memory_->device.get(); }
  /// Makes the memory device for the screen as it is now. The topic is laid out on it.
  void MakeMemoryDevice();

  TopicPane& pane_;
  UINT driver_wheel_message_;
  std::unique_ptr<MemoryDevice> memory_;
  int pressed_link_ = -1;
  /// What the wheel has turned and not scrolled yet.
  int wheel_rest_ = 0;
};

}  // namespace qdix::help_viewer::win32
