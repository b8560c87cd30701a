// The entry point of help.exe: connects the program, the peers of its controls, its devices and its topics.
// Contains no logic.
#include <windows.h>

#include <memory>
#include <optional>

#include "companion/win32/companion_program.h"
#include "help_viewer/help_form.h"
#include "help_viewer/win32/packed_topics.h"
#include "help_viewer/win32/resources.h"
#include "help_viewer/win32/topic_pane_peer.h"
#include "help_viewer/win32/turn.h"
#include "os/win32/win32_clipboard.h"
#include "os/win32/win32_printer.h"
#include "os/win32/win32_screen.h"
#include "runtime/entry.h"
#include "ui/win32/list_peers.h"
#include "ui/win32/simple_peers.h"
#include "ui/win32/text_box_peer.h"

namespace qdix::help_viewer::win32 {

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
    case ui::Kind::kOwn:
      return MakePeerOf<TopicPanePeer, TopicPane>(context, model, parent, number);
    default:
      return nullptr;
  }
}

class Program {
 public:
  explicit Program(HINSTANCE instance)
      : start_{.packed_stream = PackedTopics(instance, kHelpTopics), .command_line = GetCommandLineA()},
        program_(instance, kHelpViewerIcon, &MakeOwnPeer, devices_, start_) {
    clipboard_.SetOwner(program_.Window().MainWindow());
    printer_.SetOwner(program_.Window().MainWindow());
  }

  [[nodiscard]] bool Run(int show_command) { return program_.Run(show_command); }

 private:
  os::win32::Win32Clipboard clipboard_;
  os::win32::Win32Printer printer_;
  os::win32::Win32Screen screen_;
  Devices devices_{clipboard_, printer_, screen_};
  StartWith start_;
  companion::win32::CompanionProgram<HelpForm> program_;
};

}  // namespace

}  // namespace qdix::help_viewer::win32

extern "C" int QdixMain(void* instance, int show_command) {
  using namespace qdix::help_viewer::win32;
  std::optional<Turn> turn("Q-DIX Help starts");
  const auto program = std::make_unique<Program>(static_cast<HINSTANCE>(instance));
  turn.reset();
  return program->Run(show_command) ? 0 : 1;
}
