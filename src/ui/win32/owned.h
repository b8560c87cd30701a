// Owners of Windows handles. Each releases its handle when it is destroyed.
#pragma once

#include <windows.h>

#include <memory>

namespace qdix::ui::win32 {

template <class Handle>
struct DeleteGdiObject {
  using pointer = Handle;
  void operator()(Handle object) const { DeleteObject(object); }
};

/// A font, brush or bitmap. Must not be selected into a device when it is destroyed.
template <class Handle>
using OwnedGdiObject = std::unique_ptr<void, DeleteGdiObject<Handle>>;

struct DeleteMemoryDevice {
  using pointer = HDC;
  void operator()(HDC device) const { DeleteDC(device); }
};
using OwnedMemoryDevice = std::unique_ptr<void, DeleteMemoryDevice>;

struct DestroyOwnIcon {
  using pointer = HICON;
  void operator()(HICON icon) const { DestroyIcon(icon); }
};
/// An icon that is not shared with the system.
using OwnedIcon = std::unique_ptr<void, DestroyOwnIcon>;

struct DestroyMenuTree {
  using pointer = HMENU;
  void operator()(HMENU menu) const { DestroyMenu(menu); }
};
/// A menu with all its submenus.
using OwnedMenu = std::unique_ptr<void, DestroyMenuTree>;

struct DestroyOwnWindow {
  using pointer = HWND;
  void operator()(HWND window) const { DestroyWindow(window); }
};
/// A top-level window with everything in it.
using OwnedWindow = std::unique_ptr<void, DestroyOwnWindow>;

/// The device context of the whole screen, held while something is measured or made for it.
class ScreenDevice {
 public:
  ScreenDevice() : device_(GetDC(nullptr)) {}
  ScreenDevice(const ScreenDevice&) = delete;
  ScreenDevice& operator=(const ScreenDevice&) = delete;
  ~ScreenDevice() { ReleaseDC(nullptr, device_); }

  [[nodiscard]] HDC Get() const { return device_; }

 private:
  HDC device_;
};

}  // namespace qdix::ui::win32
