#include "self_test/win32/window_checks.h"

#include "config_launcher/config_form.h"
#include "help_viewer/help_form.h"
#include "help_viewer/win32/packed_topics.h"
#include "help_viewer/win32/topic_pane_peer.h"
#include "os/win32/gdi_text_device.h"
#include "os/win32/win32_screen.h"
#include "ui/win32/peer_factory.h"
#include "undo/undo_form.h"

namespace qdix::self_test::win32 {

namespace {

/// Closes the program. Its window must be gone afterwards.
template <class Program>
Outcome Close(std::unique_ptr<OpenProgram<Program>>& open) {
  HWND const main = open->MainWindow();
  open.reset();
  return Outcome::Expect(IsWindow(main) == FALSE, "its window is still open");
}

/// Opens, checks and closes a program with a single page.
template <class Program, class... Others>
void CheckProgram(const Bench& bench, const std::string& name, Others&... others) {
  auto open = std::make_unique<OpenProgram<Program>>(bench, others...);
  bench.report.Run(name + ": start", [&open] { return open->Start(); });
  bench.report.Run(name + ": controls", [&open] { return open->Walk(); });
  bench.report.Run(name + ": close", [&open] { return Close(open); });
}

Outcome OpenTab(OpenProgram<app::Form1>& open, int tab) {
  const base::Status opened = open.TheProgram().MainWindow().SSTab1.SetTab(tab);
  return opened.Ok() ? open.Walk() : Outcome::Failed(opened.Error().Description());
}

/// Says whose window is in front while ours is shown.
std::string Foreground() {
  HWND const front = GetForegroundWindow();
  if (front == nullptr) return "none";
  DWORD process = 0;
  GetWindowThreadProcessId(front, &process);
  return process == GetCurrentProcessId() ? "of this program" : "of another program";
}

void CheckMainProgram(const Bench& bench) {
  auto open = std::make_unique<OpenProgram<app::Form1>>(bench);
  bench.report.Run("QDIX: start", [&open] { return open->Start(); });
  bench.report.Ask("QDIX: foreground window", &Foreground);
  int tab = 0;
  for (const ui::Design& page : screens::kTabPages) {
    bench.report.Run(std::string("QDIX: tab \"") + page.caption + "\"",
                     [&open, tab] { return OpenTab(*open, tab); });
    ++tab;
  }
  bench.report.Run("QDIX: close", [&open] { return Close(open); });
}

void CheckHelpViewer(const Bench& bench) {
  const ui::win32::OwnedMemoryDevice device(CreateCompatibleDC(nullptr));
  os::win32::GdiTextDevice text(device.get(), os::win32::kScreenFaces);
  QuietClipboard clipboard;
  QuietPrinter printer(text);
  os::win32::Win32Screen screen;
  const help_viewer::Devices devices{clipboard, printer, screen};
  const help_viewer::StartWith start{
      .packed_stream = help_viewer::win32::PackedTopics(bench.instance, kSelfTestTopics),
      .command_line = "help.exe 4"};
  bench.report.Run("help: topics", [&start] {
    return Outcome::Expect(!start.packed_stream.empty(), "the program contains no topics");
  });
  CheckProgram<help_viewer::HelpForm>(bench, "help", devices, start);
}

}  // namespace

std::unique_ptr<ui::win32::NativeControl> MakeAnyPeer(const ui::win32::PeerContext& context,
                                                      ui::Control& model, HWND parent, int number) {
  if (model.GetKind() != ui::Kind::kOwn) return ui::win32::MakePeer(context, model, parent, number);
  return ui::win32::MakePeerFrom<help_viewer::win32::TopicPanePeer>(context, model, parent, number);
}

void RunWindowChecks(const Bench& bench) {
  CheckMainProgram(bench);
  CheckProgram<undo::UndoForm>(bench, "undo");
  QuietFileDialogs dialogs;
  CheckProgram<config_launcher::ConfigForm>(bench, "configL", dialogs);
  CheckHelpViewer(bench);
}

}  // namespace qdix::self_test::win32
