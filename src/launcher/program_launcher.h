// The list of the user's programs: read from its file, shown on the tab and in the menu of the tray icon, and
// started from there.
#pragma once

#include <array>
#include <optional>
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

  /// Reads the list and fills list and menu; a list that cannot be read counts as empty. Leaves an empty file
  /// behind if there is none. Error 340 if the file holds more programs than the menu has entries.
  base::Status FillLauncherMenu();

  /// Replaces what list and menu show by what the file holds now. False, with both left as they are, if the
  /// file exists but cannot be opened or read, as while another program holds it.
  base::Result<bool> ReloadLauncherMenu();

  base::Status List5_DblClick();
  base::Status mnuProgram_Click(int index);

 private:
  /// One more than the menu has.
  static constexpr std::size_t kTableSlots = 26;
  using Table = std::array<std::string, kTableSlots>;

  /// The bytes of the file, none if it does not exist; nothing if it exists but cannot be opened or read.
  [[nodiscard]] std::optional<std::string> ReadList();
  base::Status ShowList(const std::string& content);
  base::Status ShowRecords(const std::string& content);
  /// Empties the menu, as far as a menu can be: its last entry stays.
  void HideMenu();
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
