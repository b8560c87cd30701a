// Inspects a running program from outside, and acts on it, for scripts: qdix_probe [--undo] COMMAND
// [ARGUMENT...]. The exit code is 0 if the answer was found or the action was done. kUsage lists the
// commands.
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <iomanip>
#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "fake_clock.h"
#include "tests/e2e/driver/cpu_statistics.h"
#include "tests/e2e/driver/hand.h"
#include "tests/e2e/driver/help_windows.h"
#include "tests/e2e/driver/registry.h"
#include "tests/e2e/driver/shipped_program.h"
#include "timing.h"

namespace {

using qdix::e2e::Eventually;
using qdix::e2e::ProgramFacts;
using qdix::e2e::ShippedProgram;
using Arguments = std::span<const char* const>;

constexpr const char* kUsage =
    "qdix_probe [--undo] COMMAND [ARGUMENT...]    looks at QDIX.exe, or at undo.exe\n"
    "  wait-window       waits until the main window is shown\n"
    "  caption           prints the caption of the main window\n"
    "  text NAME         prints the text of a control\n"
    "  enabled NAME      prints 1 or 0\n"
    "  rect NAME         prints the place of a control on the screen: x y width height, in pixels\n"
    "  open-tab INDEX    opens a tab, counted from 0\n"
    "  choose NAME TEXT  picks the row of a list\n"
    "  setting KEY\\NAME                prints a stored setting; the keys are Settings, Startup and Machine\n"
    "  store-setting KEY\\NAME TEXT     stores it; the program must not be running\n"
    "  committed         prints the private committed bytes of the program\n"
    "  peak              prints \"sampling\", then the most committed bytes from the moment when Command1 "
    "is\n"
    "                    disabled until it is enabled again\n"
    "  answer-boxes      presses OK in every message box of the program and prints its text\n"
    "  close-help        closes the first steps, which open with the window of a first start; none is "
    "right as well\n"
    "  feed-load         plays the load of this machine as the system's statistics, which Wine does not "
    "keep,\n"
    "                    until the program has ended\n"
    "  time-press NAME   presses a button by message and prints the milliseconds until its handler has "
    "ended\n"
    "  time-loop BYTES PUMPS   allocates memory, writes to each page, pumps, frees it and pumps again, in a "
    "program\n"
    "                    with a window if there are pumps; prints the milliseconds\n"
    "  time-pumps COUNT [window]   prints the milliseconds of empty pumps, in a program with a window or "
    "without\n"
    "  time-start CLASS PATH    starts a program, prints the milliseconds until a window of that class is "
    "shown,\n"
    "                    and closes it\n"
    "  start-with-clock PERCENT PATH    starts QDIX.exe; the processor seems to have that share of its "
    "speed\n"
    "  press-key CODE    presses a key, by its virtual code, for the window in front\n"
    "  answer BUTTON     waits for a message box of the program and presses yes or no in it\n"
    "  begin-close       asks the main window to close, and does not wait\n"
    "  close             closes the main window and waits until the program has ended\n"
    "  serve             does a command for each line of its input, and prints \"=== \" and the exit code "
    "after it\n";

constexpr int kDisablingDeadlineMs = 10000;
constexpr int kReleaseDeadlineMs = 180000;
constexpr int kHelpComesMs = 4000;

int Fail(const std::string& why) {
  std::fprintf(stderr, "probe: %s\n", why.c_str());
  return 1;
}

int PrintBytes(std::uint64_t bytes) {
  std::printf("%llu\n", static_cast<unsigned long long>(bytes));
  return 0;
}

/// A setting, identified by its key and its name.
struct Setting {
  explicit Setting(const std::string& path) : name(path.substr(path.find('\\') + 1)) {
    if (path == "Startup\\" + name) key = &qdix::e2e::kStartup;
    if (path == "Settings\\" + name) key = &qdix::e2e::kSettings;
    if (path == "Machine\\" + name) key = &qdix::e2e::kMachineKey;
  }
  std::string name;
  /// Null if there is no such key.
  const qdix::e2e::KeyPath* key = nullptr;
};

int PrintSetting(const std::string& path) {
  const Setting setting(path);
  if (setting.key == nullptr) return Fail("no key in " + path);
  const auto text = qdix::e2e::RegistryText(*setting.key, setting.name);
  if (!text) return Fail(path + " is not stored");
  std::puts(text->c_str());
  return 0;
}

int StoreSetting(const std::string& path, const std::string& text) {
  const Setting setting(path);
  if (setting.key == nullptr) return Fail("no key in " + path);
  qdix::e2e::SetRegistryText(*setting.key, setting.name, text);
  return 0;
}

int WaitWindow(const ProgramFacts& facts) {
  const bool shown = Eventually([&facts] {
    ShippedProgram program(facts);
    return program.Attach() && IsWindowVisible(program.MainWindow()) != 0;
  });
  return shown ? 0 : Fail("the window is not shown");
}

int Caption(const ShippedProgram& program) {
  std::puts(program.Caption().c_str());
  return 0;
}

int Committed(const ShippedProgram& program) { return PrintBytes(program.CommittedBytes()); }

int Peak(const ShippedProgram& program) {
  std::puts("sampling");
  std::uint64_t peak_bytes = 0;
  const auto sample_until = [&](bool enabled, int deadline_ms) {
    return Eventually(
        [&] {
          peak_bytes = std::max(peak_bytes, program.CommittedBytes());
          return program.IsEnabled("Command1") == enabled;
        },
        deadline_ms);
  };
  if (!sample_until(false, kDisablingDeadlineMs)) return Fail("Command1 was not disabled");
  if (!sample_until(true, kReleaseDeadlineMs)) return Fail("Command1 was not enabled again");
  return PrintBytes(peak_bytes);
}

int AnswerBoxes(const ShippedProgram& program) {
  for (const std::string& text : program.AnswerBoxes()) std::puts(text.c_str());
  return program.MessageBoxes().empty() ? 0 : Fail("a message box stays open");
}

int Answer(const ShippedProgram& program, const std::string& button) {
  if (!Eventually([&program] { return program.MessageBoxes().size() == 1; })) return Fail("no message box");
  const int number = button == "yes" ? IDYES : IDNO;
  return PressButton(program.MessageBoxes().front(), number) ? 0 : Fail("the box has no such button");
}

int PressKey(const std::string& code) {
  qdix::e2e::PressKey(std::atoi(code.c_str()));
  return 0;
}

int StartWithClock(const std::string& percent, const std::string& path) {
  return qdix::probe::StartWithClock(path, std::atoi(percent.c_str())) ? 0 : Fail("it cannot be started so");
}

int FeedLoad(const ShippedProgram& program) {
  constexpr DWORD kFeedMs = 500;
  std::puts("feeding");
  qdix::e2e::HostLoad load;
  while (program.IsRunning()) {
    qdix::e2e::SetCpuLoad(load.Percent());
    Sleep(kFeedMs);
  }
  qdix::e2e::RemoveCpuStatistics();
  return 0;
}

int CloseHelp() {
  static_cast<void>(Eventually([] { return !qdix::e2e::HelpWindows().empty(); }, kHelpComesMs));
  return qdix::e2e::CloseHelpWindows() ? 0 : Fail("a viewer of the help stays open");
}

int BeginClose(const ShippedProgram& program) {
  program.Close();
  return 0;
}

int Close(const ShippedProgram& program) {
  program.Close();
  return Eventually([&] { return !program.IsRunning(); }) ? 0 : Fail("the program goes on");
}

int PrintMs(double ms) {
  if (ms < 0) return Fail("it did not come to its end");
  std::printf("%.0f\n", ms);
  return 0;
}

int Text(const ShippedProgram& program, const std::string& name) {
  std::puts(program.Text(name).c_str());
  return 0;
}

int Enabled(const ShippedProgram& program, const std::string& name) {
  std::puts(program.IsEnabled(name) ? "1" : "0");
  return 0;
}

int Rect(const ShippedProgram& program, const std::string& name) {
  const RECT rect = program.ScreenRect(name);
  std::printf("%ld %ld %ld %ld\n", rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
  return 0;
}

int OpenTab(const ShippedProgram& program, const std::string& index) {
  const int tab = std::atoi(index.c_str());
  program.OpenTab(tab);
  return program.OpenedTab() == tab ? 0 : Fail("no tab " + index);
}

int RunOnProgram(const ShippedProgram& program, const std::string& command) {
  if (command == "close-help") return CloseHelp();
  if (command == "caption") return Caption(program);
  if (command == "committed") return Committed(program);
  if (command == "peak") return Peak(program);
  if (command == "answer-boxes") return AnswerBoxes(program);
  if (command == "feed-load") return FeedLoad(program);
  if (command == "begin-close") return BeginClose(program);
  if (command == "close") return Close(program);
  return Fail(std::string("usage:\n") + kUsage);
}

int RunOnControl(const ShippedProgram& program, const std::string& command, Arguments arguments) {
  const std::string name = arguments[0];
  if (!program.HasControl(name)) return Fail("no control " + name);
  if (command == "text" && arguments.size() == 1) return Text(program, name);
  if (command == "enabled" && arguments.size() == 1) return Enabled(program, name);
  if (command == "rect" && arguments.size() == 1) return Rect(program, name);
  if (command == "time-press" && arguments.size() == 1) return PrintMs(qdix::probe::PressMs(program, name));
  if (command == "choose" && arguments.size() == 2) {
    return program.Choose(name, arguments[1]) ? 0 : Fail(name + " has no row " + arguments[1]);
  }
  return Fail(std::string("usage:\n") + kUsage);
}

int Run(Arguments arguments) {
  const bool is_undo = !arguments.empty() && arguments.front() == std::string("--undo");
  if (is_undo) arguments = arguments.subspan(1);
  if (arguments.empty()) return Fail(std::string("usage:\n") + kUsage);
  const ProgramFacts facts = is_undo ? qdix::e2e::Undo() : qdix::e2e::Qdix();
  const std::string command = arguments.front();
  arguments = arguments.subspan(1);
  if (command == "wait-window" && arguments.empty()) return WaitWindow(facts);
  if (command == "setting" && arguments.size() == 1) return PrintSetting(arguments[0]);
  if (command == "store-setting" && arguments.size() == 2) return StoreSetting(arguments[0], arguments[1]);
  if (command == "time-loop" && arguments.size() == 2) {
    return PrintMs(qdix::probe::LoopMs(std::strtoul(arguments[0], nullptr, 10), std::atoi(arguments[1])));
  }
  if (command == "time-pumps" && !arguments.empty() && arguments.size() <= 2) {
    return PrintMs(qdix::probe::PumpsMs(std::atoi(arguments[0]), arguments.size() == 2));
  }
  if (command == "time-start" && arguments.size() == 2) {
    return PrintMs(qdix::probe::StartMs(arguments[0], arguments[1]));
  }
  if (command == "press-key" && arguments.size() == 1) return PressKey(arguments[0]);
  if (command == "start-with-clock" && arguments.size() == 2)
    return StartWithClock(arguments[0], arguments[1]);
  ShippedProgram program(facts);
  if (!program.Attach()) return Fail("the program does not run");
  if (arguments.empty()) return RunOnProgram(program, command);
  if (command == "open-tab" && arguments.size() == 1) return OpenTab(program, arguments[0]);
  if (command == "answer" && arguments.size() == 1) return Answer(program, arguments[0]);
  return RunOnControl(program, command, arguments);
}

/// Answers many questions in one process. When memory is measured, starting a process for each question would
/// change the result.
int Serve() {
  constexpr std::size_t kMaxWords = 3;
  std::array<char, 200> line{};
  while (std::fgets(line.data(), static_cast<int>(line.size()), stdin) != nullptr) {
    std::vector<std::string> words;
    std::istringstream text(line.data());
    // Quotation marks enclose a name with blanks. The last word is the rest of the line: rows contain blanks.
    for (std::string word; words.size() + 1 < kMaxWords && text >> std::quoted(word, '"', '^');) {
      words.push_back(word);
    }
    std::string rest;
    if (std::getline(text >> std::ws, rest)) words.push_back(rest);
    std::vector<const char*> arguments;
    for (const std::string& word : words) arguments.push_back(word.c_str());
    const int status = Run(arguments);
    std::printf("=== %d\n", status);
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  // Unbuffered: a script reads the first line of `peak` while the program still runs, and `serve` answers
  // line by line.
  std::setvbuf(stdout, nullptr, _IONBF, 0);
  std::setvbuf(stdin, nullptr, _IONBF, 0);
  const Arguments arguments(argv + 1, static_cast<std::size_t>(argc) - 1);
  if (arguments.size() == 1 && arguments.front() == std::string("serve")) return Serve();
  return Run(arguments);
}
