// Windows of a tab strip and its pages. A page is a separate window over the strip's display area; only the
// open one is shown.
#pragma once

#include "ui/tab_strip.h"
#include "ui/win32/native_control.h"

namespace qdix::ui::win32 {

class TabStripPeer final : public NativeControl {
 public:
  using ModelType = TabStrip;
  static constexpr Kind kKind = Kind::kTabStrip;

  TabStripPeer(const PeerContext& context, TabStrip& model, HWND parent, int number);
  void OnNotify(UINT code) override;

  /// Returns the area of a page, relative to the strip's parent.
  [[nodiscard]] PixelBox DisplayArea() const;

 private:
  void ValueChanged() override;
  void CaptionChanged() override {}

  TabStrip& strip_;
};

class TabPagePeer final : public NativeControl {
 public:
  using ModelType = TabPage;
  static constexpr Kind kKind = Kind::kTabPage;

  TabPagePeer(const PeerContext& context, TabPage& model, HWND parent, int number);

 private:
  LRESULT HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  [[nodiscard]] bool TakesKeyboard() const override { return false; }
  void CaptionChanged() override {}
};

}  // namespace qdix::ui::win32
