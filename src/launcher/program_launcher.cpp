#include "launcher/program_launcher.h"

#include "base/text.h"
#include "launcher/launcher_file.h"
#include "shell/application_folder.h"
#include "shell/start_program.h"

namespace qdix::launcher {

namespace {

/// Reads no more records than needed to detect that there are too many.
constexpr std::uint32_t kMaxBytes = static_cast<std::uint32_t>((kMaxEntries + 2) * kRecordBytes);

bool IsLetter(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

}  // namespace

ProgramLauncher::ProgramLauncher(const os::System& system, host::Boxes& boxes, const Screens& screens,
                                 LaunchRelease& release)
    : system_(system),
      boxes_(boxes),
      screens_(screens),
      release_(release),
      menu_handlers_(base::Callback<base::Status(int)>::To<&ProgramLauncher::mnuProgram_Click>(*this)) {
  screens_.launcher.List5.OnDoubleClick = ui::Handler::To<&ProgramLauncher::List5_DblClick>(*this);
  for (int index = 0; index < screens_.tray_menu.mnuProgram.Count(); ++index) {
    screens_.tray_menu.mnuProgram[index].OnClick = menu_handlers_.Of(index);
  }
}

base::Status ProgramLauncher::FillLauncherMenu() { return ShowList(ReadList().value_or(std::string())); }

base::Result<bool> ProgramLauncher::ReloadLauncherMenu() {
  const std::optional<std::string> content = ReadList();
  if (!content) return false;
  HideMenu();
  const base::Status shown = ShowList(*content);
  if (!shown.Ok()) return shown.Error();
  return true;
}

base::Status ProgramLauncher::ShowList(const std::string& content) {
  screens_.launcher.List5.Clear();
  const base::Status shown = ShowRecords(content);
  if (!shown.Ok()) return shown;
  release_.LoadSettings();
  return base::kDone;
}

/// A list that neither exists nor can be created, for example on a CD, counts as empty.
std::optional<std::string> ProgramLauncher::ReadList() {
  const std::string path = shell::ApplicationFolder(system_.processes) + kLauncherFileName;
  std::optional<std::string> content = ReadWholeFile(system_.files, path, kMaxBytes);
  if (content) return content;
  if (system_.files.GetFileAttributesA(path.c_str()) != os::kInvalidFileAttributes) return std::nullopt;
  const os::FileHandle made =
      system_.files.CreateFileA(path.c_str(), os::kGenericRead | os::kGenericWrite, os::kOpenAlways);
  if (made != os::kInvalidFile) system_.files.CloseHandle(made);
  return std::string();
}

base::Status ProgramLauncher::ShowRecords(const std::string& content) {
  screens::TrayMenu& menu = screens_.tray_menu;
  const std::size_t count = RecordCount(content.size());
  for (std::size_t index = 0; index < count; ++index) {
    menu.mnuPrograms.SetEnabled(true);
    const LauncherEntry entry = ReadRecord(content, index);
    const auto element = static_cast<int>(index);
    if (element >= menu.mnuProgram.Count()) return base::NoSuchElement(element);
    const std::string_view shown_name = base::CutAtNul(entry.name);
    menu.mnuProgram[element].SetCaption(shown_name);
    base::Ignore(menu.mnuProgram[element].SetVisible(true));  // only hiding can be refused
    launcher_paths_[index] = entry.path;
    launcher_start_in_[index] = entry.start_in;
    screens_.launcher.List5.AddItem(shown_name, element);
  }
  if (count == 0) menu.mnuPrograms.SetEnabled(false);
  return base::kDone;
}

void ProgramLauncher::HideMenu() {
  screens::TrayMenu& menu = screens_.tray_menu;
  menu.mnuPrograms.SetEnabled(false);
  for (int index = menu.mnuProgram.Count() - 1; index >= 0; --index) {
    base::Ignore(menu.mnuProgram[index].SetVisible(false));
  }
}

ProgramLauncher::Program ProgramLauncher::ProgramOf(std::size_t index) const {
  return {std::string(base::CutAtNul(launcher_paths_[index])),
          std::string(base::CutAtNul(launcher_start_in_[index]))};
}

/// The release handles events, and one of them may reload the list, so the chosen program is copied first.
base::Status ProgramLauncher::List5_DblClick() {
  screens::LauncherScreen& screen = screens_.launcher;
  const int selected = screen.List5.SelectedIndex();
  if (selected == ui::ListControl::kNoSelection) return base::kDone;
  const Program program = ProgramOf(static_cast<std::size_t>(screen.List5.ItemData(selected)));
  screen.txtFreeLabel.SetVisible(true);
  screen.List5.SetEnabled(false);
  screen.txtFreeLabel.Refresh();
  if (release_.FreeMemoryBeforeLaunch() == memory::ReleaseOutcome::kUnloaded) return base::kDone;
  screen.List5.SetEnabled(true);
  screen.txtFreeLabel.SetVisible(false);
  screen.txtFreeLabel.Refresh();
  Start(program);
  return base::kDone;
}

base::Status ProgramLauncher::mnuProgram_Click(int index) {
  const Program program = ProgramOf(static_cast<std::size_t>(index));
  if (release_.FreeMemoryBeforeLaunch() != memory::ReleaseOutcome::kUnloaded) Start(program);
  return base::kDone;
}

void ProgramLauncher::Start(const Program& program) {
  if (!program.start_in.empty()) ChangeFolder(program.start_in);
  if (screens_.form.Unloaded()) return;
  Report(shell::StartProgram(system_.processes, program.path));
}

/// Sets the drive first, because each drive has its own current folder; then the folder.
void ProgramLauncher::ChangeFolder(const std::string& folder) {
  if (!IsLetter(folder.front())) {
    Report(base::kInvalidProcedureCall);
  } else if (!system_.processes.SetCurrentDirectoryA(folder.substr(0, 1) + ":")) {
    Report(base::kDeviceUnavailable);
  }
  if (screens_.form.Unloaded()) return;
  if (!system_.processes.SetCurrentDirectoryA(folder)) Report(base::kPathNotFound);
}

void ProgramLauncher::Report(const base::Status& status) {
  if (status.Ok()) return;
  boxes_.Show(status.Error().Description());
}

}  // namespace qdix::launcher
