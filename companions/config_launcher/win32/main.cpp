// The entry point of configL.exe: connects the program, the peers of its controls, the file dialogs and files
// dropped on the window. Contains no logic.
#include <windows.h>

#include "config_launcher/config_form.h"
#include "config_launcher/win32/resources.h"
#include "host/win32/program_host.h"
#include "os/win32/dropped_files.h"
#include "os/win32/interactive_machine.h"
#include "os/win32/win32_file_dialogs.h"
#include "os/win32/win32_files.h"
#include "os/win32/win32_processes.h"
#include "os/win32/win32_shell_files.h"
#include "os/win32/win32_windows.h"
#include "runtime/entry.h"
#include "ui/win32/list_peers.h"
#include "ui/win32/simple_peers.h"
#include "ui/win32/text_box_peer.h"

namespace qdix::config_launcher::win32 {

namespace {

constexpr ui::win32::PeerFactory kMakePeer =
    &ui::win32::MakePeerFrom<ui::win32::LabelPeer, ui::win32::ButtonPeer, ui::win32::TextBoxPeer,
                             ui::win32::ListBoxPeer>;

/// What `ConfigSystem` is made from.
struct Machine : os::win32::InteractiveMachine {
  os::win32::Win32Windows windows;
  os::win32::Win32Processes processes;
  os::win32::Win32ShellFiles shell_files;
  os::win32::Win32Files files;
};

class Program {
 public:
  explicit Program(HINSTANCE instance) : host_(instance, kConfigLauncherIcon, kMakePeer, dialogs_) {
    ui::win32::FormWindow& window = host_.Window();
    dialogs_.SetOwner(window.MainWindow());
    window.OnFilesDropped = base::Callback<void(WPARAM)>::To<&Program::FilesDropped>(*this);
    window.OnQueryEndSession = base::Callback<bool()>::To<&ConfigForm::MaySessionEnd>(host_.TheProgram());
    window.OnActivatedMinimised =
        base::Callback<void(std::uint32_t)>::To<&ConfigForm::ActivatedMinimised>(host_.TheProgram());
    os::win32::AcceptDroppedFiles(window.MainWindow());
  }

  [[nodiscard]] int Run(int show_command) { return host_.Run(show_command); }

 private:
  void FilesDropped(WPARAM drop) { host_.TheProgram().FilesDropped(os::win32::TakeDroppedPaths(drop)); }

  os::win32::Win32FileDialogs dialogs_;
  host::win32::ProgramHost<ConfigForm, Machine> host_;
};

}  // namespace

}  // namespace qdix::config_launcher::win32

extern "C" int QdixMain(void* instance, int show_command) {
  auto* const program = new qdix::config_launcher::win32::Program(static_cast<HINSTANCE>(instance));
  return program->Run(show_command);
}
