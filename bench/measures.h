// The measurements. Each starts what it needs and ends it again; the registry of the program is a known one.
#pragma once

#include <vector>

#include "bench/report.h"

namespace qdix::bench {

/// Bytes of the shipped exes.
[[nodiscard]] std::vector<Row> MeasureSizes();
/// From the request to start a program until its window is shown.
[[nodiscard]] std::vector<Row> MeasureStart();
/// Private committed memory, and processor time over a minute with the window shown and with it hidden.
[[nodiscard]] std::vector<Row> MeasureIdle();
/// A large release less a small one, which pumps as often, beside a loop that takes, touches and frees as
/// much.
[[nodiscard]] Row MeasureRelease();
/// The last of a million ticks of Timer1 on the simulated machine beside the first.
[[nodiscard]] Row MeasureTicks();
/// Prints a table of what the idle program holds of the system, beside programs of the system.
void PrintResources();

}  // namespace qdix::bench
