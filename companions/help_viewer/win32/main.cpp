// The entry point of help.exe: connects the program, the peers of its controls, its devices and its topics.
// Contains no logic.
#include <windows.h>

#include <optional>

#include "help_viewer/help_form.h"
#include "help_viewer/win32/packed_topics.h"
#include "help_viewer/win32/resources.h"
#include "help_viewer/win32/topic_pane_peer.h"
#include "help_viewer/win32/turn.h"
#include "host/win32/program_host.h"
#include "os/win32/interactive_machine.h"
#include "os/win32/win32_clipboard.h"
#include "os/win32/win32_printer.h"
#include "os/win32/win32_registry.h"
#include "os/win32/win32_screen.h"
#include "os/win32/win32_windows.h"
#include "runtime/entry.h"
#include "ui/win32/list_peers.h"
#include "ui/win32/simple_peers.h"
#include "ui/win32/text_box_peer.h"

namespace qdix::help_viewer::win32 {

namespace {

constexpr ui::win32::PeerFactory kMakePeer =
    &ui::win32::MakePeerFrom<ui::win32::LabelPeer, ui::win32::ButtonPeer, ui::win32::TextBoxPeer,
                             ui::win32::ListBoxPeer, TopicPanePeer>;

/// What `HelpSystem` is made from.
struct Machine : os::win32::InteractiveMachine {
  os::win32::Win32Registry registry;
  os::win32::Win32Windows windows;
};

class Program {
 public:
  explicit Program(HINSTANCE instance)
      : start_{.packed_stream = PackedTopics(instance, kHelpTopics), .command_line = GetCommandLineA()},
        host_(instance, kHelpViewerIcon, kMakePeer, devices_, start_) {
    clipboard_.SetOwner(host_.Window().MainWindow());
    printer_.SetOwner(host_.Window().MainWindow());
  }

  [[nodiscard]] int Run(int show_command) { return host_.Run(show_command); }

 private:
  os::win32::Win32Clipboard clipboard_;
  os::win32::Win32Printer printer_;
  os::win32::Win32Screen screen_;
  Devices devices_{clipboard_, printer_, screen_};
  StartWith start_;
  host::win32::ProgramHost<HelpForm, Machine> host_;
};

}  // namespace

}  // namespace qdix::help_viewer::win32

extern "C" int QdixMain(void* instance, int show_command) {
  using namespace qdix::help_viewer::win32;
  std::optional<Turn> turn("Q-DIX Help starts");
  auto* const program = new Program(static_cast<HINSTANCE>(instance));
  turn.reset();
  return program->Run(show_command);
}
