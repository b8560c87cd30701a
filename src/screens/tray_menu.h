// The menu of the tray icon, in the order in which it opens. No behaviour.
#pragma once

#include "ui/menu.h"

namespace qdix::screens {

struct TrayMenu {
  explicit TrayMenu(ui::EventDispatcher& dispatcher) : events(dispatcher) {}

  ui::EventDispatcher& events;
  ui::MenuItem mnuTray{events, "mnuTray", "Tray Menu"};
  ui::MenuItem mnuTrayFreeup{mnuTray, "mnuTrayFreeup", "Free-up RAM"};
  ui::MenuItem mnuTrayBar{mnuTray, "mnuTrayBar", ui::MenuItem::kSeparatorCaption};
  ui::MenuItem mnuTrayDisplay{mnuTray, "mnuTrayDisplay", "Display Q-DIX"};
  ui::MenuItem mnuTrayHide{mnuTray, "mnuTrayHide", "Hide"};
  ui::MenuItem mnuTrayBar2{mnuTray, "mnuTrayBar2", ui::MenuItem::kSeparatorCaption};
  ui::MenuItem mnuTrayClose{mnuTray, "mnuTrayClose", "Close"};
};

}  // namespace qdix::screens
