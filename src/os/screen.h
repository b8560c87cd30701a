// The screen.
#pragma once

namespace qdix::os {

/// In pixels.
struct ScreenSize {
  int width = 0;
  int height = 0;
};

class Screen {
 public:
  /// Returns the part of the screen that the taskbar and similar bars leave free. Width and height are at
  /// least 1.
  [[nodiscard]] virtual ScreenSize WorkArea() = 0;

 protected:
  ~Screen() = default;
};

}  // namespace qdix::os
