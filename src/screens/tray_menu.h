// The menu of the tray icon, in the order in which it opens. No behaviour.
#pragma once

#include <array>
#include <utility>

#include "ui/menu.h"

namespace qdix::screens {

struct TrayMenu {
  /// No program is known at first.
  explicit TrayMenu(ui::EventDispatcher& dispatcher) : events(dispatcher) {
    mnuPrograms.SetEnabled(false);
    for (std::size_t index = 1; index < kProgramCount; ++index)
      base::Ignore(mnuProgram[index].SetVisible(false));
  }

  using Programs = std::array<ui::MenuItem, 25>;
  static constexpr std::size_t kProgramCount = std::tuple_size_v<Programs>;

  ui::EventDispatcher& events;
  ui::MenuItem mnuTray{events, "mnuTray", "Tray Menu"};
  ui::MenuItem mnuTrayFreeup{mnuTray, "mnuTrayFreeup", "Free-up RAM"};
  ui::MenuItem mnuTrayBar{mnuTray, "mnuTrayBar", ui::MenuItem::kSeparatorCaption};
  ui::MenuItem mnuTrayDisplay{mnuTray, "mnuTrayDisplay", "Display Q-DIX"};
  ui::MenuItem mnuTrayHide{mnuTray, "mnuTrayHide", "Hide"};
  ui::MenuItem mnuTrayBar2{mnuTray, "mnuTrayBar2", ui::MenuItem::kSeparatorCaption};
  ui::MenuItem mnuPrograms{mnuTray, "mnuPrograms", "Programs"};
  /// The launcher's entries; those without a program are hidden, but for the first, because a submenu always
  /// shows one.
  Programs mnuProgram = MakePrograms(mnuPrograms, std::make_index_sequence<kProgramCount>());
  ui::MenuItem mnuTrayBar3{mnuTray, "mnuTrayBar3", ui::MenuItem::kSeparatorCaption};
  ui::MenuItem mnuTrayClose{mnuTray, "mnuTrayClose", "Close"};

 private:
  template <std::size_t... kIndex>
  static Programs MakePrograms(ui::MenuItem& parent, std::index_sequence<kIndex...> /*all*/) {
    return {{(static_cast<void>(kIndex), ui::MenuItem(parent, "mnuProgram", ""))...}};
  }
};

}  // namespace qdix::screens
