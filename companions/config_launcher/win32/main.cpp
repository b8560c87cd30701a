// The entry point of configL.exe: connects the program, the peers of its controls, the file dialogs and files
// dropped on the window. Contains no logic.
#include <windows.h>

#include <memory>

#include "companion/win32/companion_program.h"
#include "config_launcher/config_form.h"
#include "config_launcher/win32/resources.h"
#include "os/win32/dropped_files.h"
#include "os/win32/win32_file_dialogs.h"
#include "runtime/entry.h"
#include "ui/win32/list_peers.h"
#include "ui/win32/simple_peers.h"
#include "ui/win32/text_box_peer.h"

namespace qdix::config_launcher::win32 {

namespace {

std::unique_ptr<ui::win32::NativeControl> MakeOwnPeer(const ui::win32::PeerContext& context,
                                                      ui::Control& model, HWND parent, int number) {
  using namespace ui::win32;
  switch (model.GetKind()) {
    case ui::Kind::kLabel:
      return MakePeerOf<LabelPeer, ui::Label>(context, model, parent, number);
    case ui::Kind::kButton:
      return MakePeerOf<ButtonPeer, ui::Button>(context, model, parent, number);
    case ui::Kind::kTextBox:
      return MakePeerOf<TextBoxPeer, ui::TextBox>(context, model, parent, number);
    case ui::Kind::kListBox:
      return MakePeerOf<ListBoxPeer, ui::ListBox>(context, model, parent, number);
    default:
      return nullptr;
  }
}

class Program {
 public:
  explicit Program(HINSTANCE instance) : program_(instance, kConfigLauncherIcon, &MakeOwnPeer, dialogs_) {
    ui::win32::FormWindow& window = program_.Window();
    dialogs_.SetOwner(window.MainWindow());
    window.OnFilesDropped = base::Callback<void(WPARAM)>::To<&Program::FilesDropped>(*this);
    window.OnQueryEndSession = base::Callback<bool()>::To<&ConfigForm::MaySessionEnd>(program_.TheProgram());
    window.OnActivatedMinimised =
        base::Callback<void(std::uint32_t)>::To<&ConfigForm::ActivatedMinimised>(program_.TheProgram());
    os::win32::AcceptDroppedFiles(window.MainWindow());
  }

  [[nodiscard]] bool Run(int show_command) { return program_.Run(show_command); }

 private:
  void FilesDropped(WPARAM drop) { program_.TheProgram().FilesDropped(os::win32::TakeDroppedPaths(drop)); }

  os::win32::Win32FileDialogs dialogs_;
  companion::win32::CompanionProgram<ConfigForm> program_;
};

}  // namespace

}  // namespace qdix::config_launcher::win32

extern "C" int QdixMain(void* instance, int show_command) {
  const auto program =
      std::make_unique<qdix::config_launcher::win32::Program>(static_cast<HINSTANCE>(instance));
  return program->Run(show_command) ? 0 : 1;
}
