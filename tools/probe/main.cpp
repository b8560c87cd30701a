// Looks at the running program from outside, for scripts:   qdix_probe COMMAND [NAME]
//   wait-window          waits until the main window is shown
//   caption              prints the caption of the main window
//   text NAME            prints the text of a control
//   enabled NAME         prints 1 or 0
//   rect NAME            prints the place of a control on the screen: x y width height
//   committed            prints the committed private bytes of the program
//   peak                 prints "sampling", then the most committed bytes from the disabling of Command1 to
//   its enabling answer-boxes         presses OK in every message box and prints its text close closes the
//   main window and waits for it to go
// The exit code is 0 when the answer was found.
#include <algorithm>
#include <cstdio>
#include <string>

#include "tests/e2e/driver/shipped_program.h"

namespace {

using qdix::e2e::Eventually;
using qdix::e2e::ShippedProgram;

constexpr int kReleaseDeadlineMs = 180000;

int Fail(const std::string& why) {
  std::fprintf(stderr, "probe: %s\n", why.c_str());
  return 1;
}

int PrintPeak(const ShippedProgram& program) {
  std::puts("sampling");
  std::uint64_t peak_bytes = 0;
  const auto sample = [&] { peak_bytes = std::max(peak_bytes, program.CommittedBytes()); };
  const bool began = Eventually([&] {
    sample();
    return !program.IsEnabled("Command1");
  });
  if (!began) return Fail("Command1 was not disabled");
  const bool ended = Eventually(
      [&] {
        sample();
        return program.IsEnabled("Command1");
      },
      kReleaseDeadlineMs);
  if (!ended) return Fail("Command1 was not enabled again");
  std::printf("%llu\n", static_cast<unsigned long long>(peak_bytes));
  return 0;
}

int RunOnControl(const ShippedProgram& program, const std::string& command, const std::string& name) {
  if (program.Control(name) == nullptr) return Fail("no control " + name);
  if (command == "text") {
    std::puts(program.Text(name).c_str());
  } else if (command == "enabled") {
    std::puts(program.IsEnabled(name) ? "1" : "0");
  } else if (command == "rect") {
    const RECT rect = program.ScreenRect(name);
    std::printf("%ld %ld %ld %ld\n", rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
  } else {
    return Fail("no command " + command);
  }
  return 0;
}

int Run(ShippedProgram& program, const std::string& command) {
  if (command == "wait-window") return program.WaitForWindow() ? 0 : Fail("the window is not shown");
  if (command == "caption") {
    std::puts(program.Caption().c_str());
  } else if (command == "committed") {
    std::printf("%llu\n", static_cast<unsigned long long>(program.CommittedBytes()));
  } else if (command == "answer-boxes") {
    for (const std::string& text : program.AnswerBoxes()) std::puts(text.c_str());
  } else if (command == "close") {
    program.Close();
    if (!Eventually([&] { return program.MainWindow() == nullptr; })) return Fail("the window stays open");
  } else if (command == "peak") {
    return PrintPeak(program);
  } else {
    return Fail("no command " + command);
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::setvbuf(stdout, nullptr, _IONBF, 0);
  if (argc < 2) return Fail("which command?");
  ShippedProgram program;
  if (!program.Attach()) return Fail("the program does not run");
  return argc == 2 ? Run(program, argv[1]) : RunOnControl(program, argv[1], argv[2]);
}
