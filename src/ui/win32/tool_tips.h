// The one window that shows the tool tips of all controls.
#pragma once

#include <string_view>

#include "ui/win32/owned.h"

namespace qdix::ui::win32 {

class ToolTips {
 public:
  /// `main` is the top-level window that contains the controls.
  ToolTips(HINSTANCE instance, HWND main);

  /// Shows `text` while the pointer rests on `control`; an empty text shows nothing. Windows 95 shows at most
  /// 79 characters.
  void Add(HWND control, std::string_view text);

  [[nodiscard]] HWND Window() const { return window_.get(); }

 private:
  OwnedWindow window_;
};

}  // namespace qdix::ui::win32
