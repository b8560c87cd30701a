// The whole program on a simulated machine, in stepped time. A test sets up the machine, starts the program,
// acts and checks.
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
inline constexpr ui::Colour kBarColour = 0x000000FFU;
/// Height of the full bar that a release draws on the graph.
inline constexpr int kFullBarPx = 64;
/// Interval of the display refresh, which also reads the processor load.
inline constexpr std::int64_t kRefreshMs = 750;
inline constexpr std::int64_t kMinuteMs = 60000;

class ProgramRig {
 public:
  /// Makes a machine with this much memory, half of it available, and a swap file of the same size, a quarter
  /// of it used.
  explicit ProgramRig(std::uint32_t ram_bytes = 64 * kMegabyte);
  ProgramRig(const ProgramRig&) = delete;
  ProgramRig& operator=(const ProgramRig&) = delete;
  ~ProgramRig();

  /// Stores a setting as an earlier run would have left it.
  void Store(const char* section, const char* key, const std::string& text);
  [[nodiscard]] std::optional<std::string> Stored(const char* section, const char* key) const;
  [[nodiscard]] static std::string SectionPath(const char* section);

  /// Marks the machine as one that has run the program before.
  void SetHasRunBefore();

  /// Creates the program and loads it.
  app::Form1& Start();
  /// Creates the program without loading it.
  app::Form1& Create();

  /// Advances the timers but not the machine's clock.
  void AdvanceMs(std::int64_t ms);

  /// Leaves this much memory available, in megabytes as the program shows them (1,024,000 bytes).
  void SetAvailableMb(double mb);
  /// Stops drawing the graph: moving pixels takes most of the time of a long run.
  void RemoveGraph();

  /// Returns the newest bar of the CPU graph, in pixels from the bottom.
  [[nodiscard]] int NewestBarPx() const;

  os::SimulatedMachine machine;
  SteppedTimers timers;
  PixelCanvas graph{240, 65};
  std::optional<app::Form1> program;
};

}  // namespace qdix::tests
