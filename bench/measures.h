// The measurements. Each starts the programs it needs and ends them. The program's registry has known
// contents.
#pragma once

#include <vector>

#include "bench/report.h"

namespace qdix::bench {

/// Measures the file sizes of the shipped exes.
[[nodiscard]] std::vector<Row> MeasureSizes();
/// Measures the time from the request to start a program until its window is shown.
[[nodiscard]] std::vector<Row> MeasureStart();
/// Measures private committed memory, and processor time per minute with the window shown and hidden.
[[nodiscard]] std::vector<Row> MeasureIdle();
/// Measures a large release minus a small one, which pumps equally often, beside a loop that takes, touches
/// and frees as much memory.
[[nodiscard]] Row MeasureRelease();
/// Measures the last 100,000 of a million ticks of Timer1 on the simulated machine beside the first 100,000.
[[nodiscard]] Row MeasureTicks();
/// Prints a table of the system resources that the idle program holds, beside programs of the system.
void PrintResources();

}  // namespace qdix::bench
