// The menu of the tray icon, in display order. No behaviour.
#pragma once

#include "ui/menu.h"

namespace qdix::screens {

struct TrayMenu {
  /// Initially there are no programs.
  explicit TrayMenu(ui::EventDispatcher& dispatcher) : events(dispatcher) {
    mnuPrograms.SetEnabled(false);
    for (int index = 1; index < mnuProgram.Count(); ++index)
      base::Ignore(mnuProgram[index].SetVisible(false));
  }

  /// Maximum number of programs in the launcher.
  static constexpr int kProgramCount = 25;

  ui::EventDispatcher& events;
  ui::MenuItem mnuTray{events, "mnuTray", "Tray Menu"};
  ui::MenuItem mnuTrayFreeup{mnuTray, "mnuTrayFreeup", "Free-up RAM"};
  ui::MenuItem mnuTrayBar{mnuTray, "mnuTrayBar", ui::MenuItem::kSeparatorCaption};
  ui::MenuItem mnuTrayDisplay{mnuTray, "mnuTrayDisplay", "Display Q-DIX"};
  ui::MenuItem mnuTrayHide{mnuTray, "mnuTrayHide", "Hide"};
  ui::MenuItem mnuTrayBar2{mnuTray, "mnuTrayBar2", ui::MenuItem::kSeparatorCaption};
  ui::MenuItem mnuPrograms{mnuTray, "mnuPrograms", "Programs"};
  /// The launcher's entries. Entries without a program are hidden, except the first, because a submenu always
  /// shows one.
  ui::MenuItemArray mnuProgram{mnuPrograms, "mnuProgram", kProgramCount};
  ui::MenuItem mnuTrayBar3{mnuTray, "mnuTrayBar3", ui::MenuItem::kSeparatorCaption};
  ui::MenuItem mnuTrayClose{mnuTray, "mnuTrayClose", "Close"};
};

}  // namespace qdix::screens
