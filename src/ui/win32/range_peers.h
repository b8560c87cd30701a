// Windows of the vertical scroll bar and the slider.
#pragma once

#include "ui/ranges.h"
#include "ui/win32/native_control.h"

namespace qdix::ui::win32 {

/// The native bar counts from 0 at the top. The model's minimum is at the top, even if it is above the
/// maximum.
class ScrollBarPeer final : public NativeControl {
 public:
  using ModelType = VerticalScrollBar;
  static constexpr Kind kKind = Kind::kVerticalScrollBar;

  ScrollBarPeer(const PeerContext& context, VerticalScrollBar& model, HWND parent, int number);
  void OnScroll(UINT code) override;

 private:
  void ValueChanged() override;
  void RangeChanged() override;
  void CaptionChanged() override {}
  void DragToThumb();

  VerticalScrollBar& bar_;
};

class SliderPeer final : public NativeControl {
 public:
  using ModelType = Slider;
  static constexpr Kind kKind = Kind::kSlider;

  SliderPeer(const PeerContext& context, Slider& model, HWND parent, int number);
  void OnScroll(UINT code) override;

 private:
  void ValueChanged() override;
  void RangeChanged() override;
  void CaptionChanged() override {}
  void SetMarks();

  Slider& slider_;
};

}  // namespace qdix::ui::win32
