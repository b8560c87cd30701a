// The icon in the notification area: its tip, its mouse messages, its menu.
#pragma once

#include "memory/manual_release.h"
#include "memory/memory_monitor.h"
#include "os/system.h"
#include "screens/tray_menu.h"
#include "ui/form.h"

namespace qdix::app {

class TrayIcon {
 public:
  /// The window message for the icon's callbacks: WM_MOUSEMOVE, with the mouse message on the icon in place
  /// of the position.
  static constexpr std::uint32_t kCallbackMessage = 512;

  TrayIcon(const os::System& system, ui::Form& form, screens::TrayMenu& menu, memory::MemoryMonitor& monitor,
           memory::ManualRelease& release);

  /// Sets the icon and the window that receives its messages. Must be called before AddToTray.
  void SetOwner(os::WindowHandle window, os::IconHandle icon);

  /// Adds the icon. Does nothing once the window has unloaded.
  void AddToTray();
  /// Tries again to add an icon that Windows refused, for example at log-on when the taskbar was not ready.
  void RetryAdd();
  /// Adds the icon again if the taskbar is a different window than before: the first version of Windows 95
  /// does not announce that the taskbar was restarted.
  void LookForTaskbar();
  /// Removes the icon if it was added.
  void Remove();

  /// Handles each mouse move over the window and each callback of the icon. Updates the tip with the
  /// available memory. A double click shows the window; the right button opens the menu.
  base::Status Form_MouseMove(int button, int shift, double x_twips, double y_twips);

  base::Status mnuTrayFreeup_Click();
  base::Status mnuTrayDisplay_Click();
  base::Status mnuTrayHide_Click();
  base::Status mnuTrayClose_Click();

 private:
  bool Notify(std::uint32_t request);
  [[nodiscard]] os::WindowHandle Taskbar() const;
  void SetTip(std::string_view text);
  void Display();

  const os::System& system_;
  ui::Form& form_;
  screens::TrayMenu& menu_;
  memory::MemoryMonitor& monitor_;
  memory::ManualRelease& release_;
  os::NotifyIconData record_;
  /// The taskbar when the icon was last requested; 0 if there was none.
  os::WindowHandle taskbar_ = 0;
  bool is_wanted_ = false;
  bool is_in_place_ = false;
};

}  // namespace qdix::app
