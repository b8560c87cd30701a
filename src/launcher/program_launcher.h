// The list of the user's programs: read from its file, shown on the tab and in the menu of the tray icon, and
// started from there.
#pragma once

#include <array>
#include <string>

#include "launcher/launch_release.h"
#include "os/system.h"
#include "screens/launcher_screen.h"
#include "screens/tray_menu.h"
#include "ui/application.h"
#include "ui/control_array.h"
#include "ui/form.h"

namespace qdix::launcher {

class ProgramLauncher {
 public:
  /// Where the programs are shown.
  struct Screens {
    const ui::Form& form;
    screens::LauncherScreen& launcher;
    screens::TrayMenu& tray_menu;
  };

  ProgramLauncher(const os::System& system, const ui::Application& application, const Screens& screens,
                  LaunchRelease& release);

  /// Reads the list anew and fills list and menu. Leaves an empty file behind where there was none. Error 340
  /// where the file holds more programs than the menu has entries.
  base::Status FillLauncherMenu();

  /// Empties the menu, as far as a menu can be: its last entry stays.
  void HideMenu();

  base::Status List5_DblClick();
  base::Status mnuProgram_Click(int index);

 private:
  /// One more than the menu has.
  static constexpr std::size_t kTableSlots = 26;
  using Table = std::array<std::string, kTableSlots>;

  [[nodiscard]] std::string ReadList();
  base::Status ShowRecords(const std::string& content);
  /// Start folder and command line as they were when the user chose the program.
  struct Program {
    std::string path;
    std::string start_in;
  };
  [[nodiscard]] Program ProgramOf(std::size_t index) const;
  void Start(const Program& program);
  void ChangeFolder(const std::string& folder);
  /// Every error on the way to a program is told, and the way goes on.
  void Report(const base::Status& status);

  const os::System& system_;
  const ui::Application& application_;
  Screens screens_;
  LaunchRelease& release_;
  ui::ElementHandlers<screens::TrayMenu::kProgramCount> menu_handlers_;
  Table launcher_paths_;
  Table launcher_start_in_;
};

}  // namespace qdix::launcher
