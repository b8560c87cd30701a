// The icon in the notification area: its tip, the mouse on it, its menu.
#pragma once

#include "memory/manual_release.h"
#include "memory/memory_monitor.h"
#include "os/system.h"
#include "screens/tray_menu.h"
#include "ui/form.h"

namespace qdix::app {

class TrayIcon {
 public:
  /// The window message by which the icon calls back: a mouse move, whose position carries the mouse message
  /// on the icon.
  static constexpr std::uint32_t kCallbackMessage = 512;

  TrayIcon(const os::System& system, ui::Form& form, screens::TrayMenu& menu, memory::MemoryMonitor& monitor,
           memory::ManualRelease& release);

  /// The window that receives the icon's messages, and the icon; before AddToTray.
  void SetOwner(os::WindowHandle window, os::IconHandle icon);

  /// Adds the icon; nothing once the window has unloaded.
  void AddToTray();
  /// Asks once more for an icon that was refused, as at log-on when the taskbar is not ready yet.
  void RetryAdd();
  /// Asks for the icon again where the taskbar is another one than it was: the first Windows 95 does not tell
  /// when it was made anew.
  void LookForTaskbar();
  /// Takes the icon away, where one was added.
  void Remove();

  /// Every mouse move over the window and on the icon: refreshes the tip with the available memory; a double
  /// click shows the window, the right button opens the menu.
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
  /// The taskbar when the icon was last asked for; 0 where there was none.
  os::WindowHandle taskbar_ = 0;
  bool is_wanted_ = false;
  bool is_in_place_ = false;
};

}  // namespace qdix::app
