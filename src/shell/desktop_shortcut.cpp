#include "shell/desktop_shortcut.h"

#include "shell/application_folder.h"
#include "shell/shell_folders.h"
#include "shell/shortcut_names.h"

namespace qdix::shell {

namespace {

constexpr std::uint32_t kWaitMs = 2000;

}  // namespace

DesktopShortcut::DesktopShortcut(const os::System& system, screens::StartupScreen& screen) : system_(system) {
  screen.Command5.OnClick = ui::Handler::To<&DesktopShortcut::Command5_Click>(*this);
}

bool DesktopShortcut::Exists(const std::string& path) const {
  return system_.files.GetFileAttributesA(path.c_str()) != os::kInvalidFileAttributes;
}

base::Status DesktopShortcut::Command5_Click() {
  const std::string desktop = SpecialFolderPath(system_.shell_files, os::kDesktopFolder);
  CopyFromRecentDocuments(desktop);
  const std::string shortcut = desktop + kShortcutName;
  const std::string program = ProgramPath(system_.processes);
  if (!desktop.empty() && !program.empty() && !Exists(shortcut)) {
    // A failure is ignored, like every other failure here.
    static_cast<void>(system_.shell_files.WriteShortcut(
        shortcut, {.target = program, .arguments = {}, .folder = ApplicationFolder(system_.processes)}));
  }
  system_.event_pump.WaitMs(kWaitMs);
  return base::kDone;
}

/// Never passes a missing file to the shell: later systems show a message box for it even with the silent
/// flag.
void DesktopShortcut::CopyFromRecentDocuments(const std::string& desktop) {
  const std::string recent = SpecialFolderPath(system_.shell_files, os::kRecentFolder);
  const std::string shortcut = recent + kShortcutName;
  if (!recent.empty()) system_.files.DeleteFileA(shortcut.c_str());
  const std::string program = ProgramPath(system_.processes);
  if (!program.empty()) system_.shell_files.SHAddToRecentDocs(os::kShardPath, program);
  if (recent.empty()) return;
  const std::string made = recent + ApplicationFileName(system_.processes) + kShortcutOfFile;
  if (Exists(made)) RenameFile(system_.shell_files, made, shortcut);
  if (!desktop.empty() && Exists(shortcut)) CopyFilesTo(system_.shell_files, {shortcut}, desktop);
}

}  // namespace qdix::shell
