// The screen that windows stand on.
#pragma once

namespace qdix::os {

/// In pixels.
struct ScreenSize {
  int width = 0;
  int height = 0;
};

class Screen {
 public:
  virtual ~Screen() = default;

  /// The part of the screen that the taskbar and its like leave to windows; both are 1 at least.
  [[nodiscard]] virtual ScreenSize WorkArea() = 0;
};

}  // namespace qdix::os
