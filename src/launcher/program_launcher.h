// The list of the user's programs: reads it from its file, shows it on the tab and in the menu of the tray
// icon, and starts the programs.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "host/boxes.h"
#include "launcher/launch_release.h"
#include "os/system.h"
#include "screens/launcher_screen.h"
#include "screens/tray_menu.h"
#include "ui/control_array.h"
#include "ui/form.h"

namespace qdix::launcher {

class ProgramLauncher {
 public:
  /// The form and the controls that show the programs.
  struct Screens {
    const ui::Form& form;
    screens::LauncherScreen& launcher;
    screens::TrayMenu& tray_menu;
  };

  ProgramLauncher(const os::System& system, host::Boxes& boxes, const Screens& screens,
                  LaunchRelease& release);

  /// Reads the list and fills the list box and the menu. A list that cannot be read counts as empty. Creates
  /// an empty file if there is none. Returns error 340 if the file holds more programs than the menu has
  /// entries.
  base::Status FillLauncherMenu();

  /// Fills the list box and the menu from the file again. Returns false and changes neither if the file
  /// exists but cannot be opened or read, for example while another program holds it open.
  base::Result<bool> ReloadLauncherMenu();

  base::Status List5_DblClick();
  base::Status mnuProgram_Click(int index);

 private:
  /// One more than the number of menu entries.
  static constexpr std::size_t kTableSlots = 26;
  using Table = std::array<std::string, kTableSlots>;

  /// Returns the bytes of the file; empty if it does not exist; std::nullopt if it exists but cannot be
  /// opened or read.
  [[nodiscard]] std::optional<std::string> ReadList();
  base::Status ShowList(const std::string& content);
  base::Status ShowRecords(const std::string& content);
  /// Empties the menu as far as possible: its last entry stays visible.
  void HideMenu();
  /// A copy of the chosen program's start folder and command line; the list may be reloaded before the start.
  struct Program {
    std::string path;
    std::string start_in;
  };
  [[nodiscard]] Program ProgramOf(std::size_t index) const;
  void Start(const Program& program);
  void ChangeFolder(const std::string& folder);
  /// Shows an error from changing the folder or starting a program. A folder error does not stop the start.
  void Report(const base::Status& status);

  const os::System& system_;
  host::Boxes& boxes_;
  Screens screens_;
  LaunchRelease& release_;
  ui::ElementHandlers<screens::TrayMenu::kProgramCount> menu_handlers_;
  Table launcher_paths_;
  Table launcher_start_in_;
};

}  // namespace qdix::launcher
