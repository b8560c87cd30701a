#include "shell/help.h"

#include "shell/application_folder.h"
#include "shell/start_program.h"

namespace qdix::shell {

Help::Help(const os::System& system, const Screens& screens) : system_(system) {
  screens.quondix.Command21.OnClick = ui::Handler::To<&Help::Command21_Click>(*this);
  screens.automatic.Command22.OnClick = ui::Handler::To<&Help::Command22_Click>(*this);
  screens.time_intervals.Command23.OnClick = ui::Handler::To<&Help::Command23_Click>(*this);
  screens.startup.Command24.OnClick = ui::Handler::To<&Help::Command24_Click>(*this);
  screens.launcher.Command16.OnClick = ui::Handler::To<&Help::Command16_Click>(*this);
  screens.cache.Command19.OnClick = ui::Handler::To<&Help::Command19_Click>(*this);
  screens.swap_file.Command20.OnClick = ui::Handler::To<&Help::Command20_Click>(*this);
  screens.about.Command17.OnClick = ui::Handler::To<&Help::Command17_Click>(*this);
  screens.about.Command6.OnClick = ui::Handler::To<&Help::Command6_Click>(*this);
}

void Help::CloseHelpFile() {
  const os::WindowHandle viewer = system_.windows.FindWindowA(nullptr, "Quondix Help");
  if (viewer != 0) system_.windows.PostMessageA(viewer, os::kWmClose);
}

bool Help::HasViewer() const {
  return system_.files.GetFileAttributesA((ApplicationFolder(system_.processes) + "help.exe").c_str()) !=
         os::kInvalidFileAttributes;
}

/// Passes exactly this command line first, without quotation marks: Windows then tries to end the name at
/// each space from the left. If it finds no program that way, quotation marks show it where the name ends.
base::Status Help::OpenTopic(const char* command) {
  CloseHelpFile();
  const std::string command_line = ApplicationFolder(system_.processes) + command;
  const base::Status started = StartProgram(system_.processes, command_line);
  if (started.Ok()) return started;
  const std::size_t name_end = command_line.rfind(' ');
  return StartProgram(system_.processes,
                      '"' + command_line.substr(0, name_end) + '"' + command_line.substr(name_end));
}

base::Status Help::FirstHelp() { return OpenTopic("help.exe 0"); }
base::Status Help::Command21_Click() { return OpenTopic("help.exe 4"); }
base::Status Help::Command22_Click() { return OpenTopic("help.exe 5"); }
base::Status Help::Command23_Click() { return OpenTopic("help.exe 6"); }
base::Status Help::Command24_Click() { return OpenTopic("help.exe 7"); }
base::Status Help::Command16_Click() { return OpenTopic("help.exe 8"); }
base::Status Help::Command19_Click() { return OpenTopic("help.exe 9"); }
base::Status Help::Command20_Click() { return OpenTopic("help.exe 10"); }
base::Status Help::Command17_Click() { return OpenTopic("help.exe 11"); }

base::Status Help::Command6_Click() {
  system_.shell.ShellExecuteA("Open", ApplicationFolder(system_.processes) + "help.htm",
                              os::kSwShowMaximized);
  return base::kDone;
}

}  // namespace qdix::shell
