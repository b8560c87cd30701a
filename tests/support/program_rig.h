// The whole program on a simulated machine, with stepped time. A test sets the machine up, starts the
// program, acts, and looks.
#pragma once

#include <optional>
#include <string>

#include "app/form1.h"
#include "os/simulated/simulated_machine.h"
#include "tests/support/pixel_canvas.h"
#include "tests/support/stepped_timers.h"

namespace qdix::tests {

inline constexpr double kNoon21November2026 = 46347.5;
inline constexpr std::uint32_t kMegabyte = 1024 * 1024;

class ProgramRig {
 public:
  /// A machine with this much memory, half of it available, and a swap file of the same size, a quarter of it
  /// used.
  explicit ProgramRig(std::uint32_t ram_bytes = 64 * kMegabyte) {
    machine.SetMemory(ram_bytes, ram_bytes / 2, ram_bytes, ram_bytes / 4 * 3);
    machine.SetNow(kNoon21November2026);
  }

  /// Stores a setting as an earlier run would have left it.
  void Store(const char* section, const char* key, const std::string& text) {
    machine.SetRegistryValue(os::kHkeyCurrentUser, SectionPath(section), key, text);
  }
  [[nodiscard]] std::optional<std::string> Stored(const char* section, const char* key) const {
    return machine.RegistryText(os::kHkeyCurrentUser, SectionPath(section), key);
  }
  [[nodiscard]] static std::string SectionPath(const char* section) {
    return std::string("Software\\VB and VBA Program Settings\\QDIX\\") + section;
  }

  /// Marks the machine as one that ran the program before.
  void SetHasRunBefore() { machine.SetRegistryValue(os::kHkeyLocalMachine, "SOFTWARE\\QDIX", "HasRun", "1"); }

  /// Makes the program and loads it.
  app::Form1& Start() {
    Create();
    program->Start();
    return *program;
  }
  /// Makes the program without loading it.
  app::Form1& Create() {
    program.emplace(machine.GetSystem());
    for (ui::Timer* timer : program->Timers()) timers.Add(*timer);
    program->Quondix().XGraphMeter1.SurfaceChanged(&graph);
    return *program;
  }

  /// Lets time pass for the timers and the clock.
  void AdvanceMs(std::int64_t ms) { timers.AdvanceMs(ms); }

  os::SimulatedMachine machine;
  SteppedTimers timers;
  PixelCanvas graph{240, 65};
  std::optional<app::Form1> program;
};

}  // namespace qdix::tests
