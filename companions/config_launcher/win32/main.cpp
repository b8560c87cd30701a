// The entry of configL.exe: puts the program, the peers of its controls, the dialogs of files and the files
// dropped on the window together. Decides nothing.
// The second header does not stand without the first.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "companion/win32/companion_program.h"
#include "config_launcher/config_form.h"
#include "config_launcher/win32/resources.h"
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

/// The paths of the files that were dropped, whose memory is freed. A path that is longer than the system
/// opens is left out.
std::vector<std::string> TakePaths(HDROP drop) {
  constexpr UINT kAskForCount = 0xFFFFFFFFU;
  std::vector<std::string> paths;
  const UINT count = DragQueryFileA(drop, kAskForCount, nullptr, 0);
  for (UINT index = 0; index < count; ++index) {
    std::array<char, MAX_PATH + 1> path{};
    const UINT length = DragQueryFileA(drop, index, path.data(), static_cast<UINT>(path.size()));
    if (length != 0 && length < path.size()) paths.emplace_back(path.data(), length);
  }
  DragFinish(drop);
  return paths;
}

class Program {
 public:
  explicit Program(HINSTANCE instance) : program_(instance, kConfigLauncherIcon, &MakeOwnPeer, dialogs_) {
    ui::win32::FormWindow& window = program_.Window();
    dialogs_.SetOwner(window.MainWindow());
    window.OnFilesDropped = base::Callback<void(WPARAM)>::To<&Program::FilesDropped>(*this);
    DragAcceptFiles(window.MainWindow(), TRUE);
  }

  [[nodiscard]] bool Run() { return program_.Run(); }

 private:
  void FilesDropped(WPARAM drop) {
    program_.TheProgram().FilesDropped(TakePaths(reinterpret_cast<HDROP>(drop)));
  }

  os::win32::Win32FileDialogs dialogs_;
  companion::win32::CompanionProgram<ConfigForm> program_;
};

}  // namespace

}  // namespace qdix::config_launcher::win32

/// The system applies the wish of who started the program by itself, when the main window is shown for the
/// first time.
extern "C" int QdixMain(void* instance, int /*show_command*/) {
  const auto program =
      std::make_unique<qdix::config_launcher::win32::Program>(static_cast<HINSTANCE>(instance));
  return program->Run() ? 0 : 1;
}
