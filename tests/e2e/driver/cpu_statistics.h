// The performance statistics of Windows 95, 98 and ME, supplied from here: Wine knows them but does not keep
// them.
#pragma once

namespace qdix::e2e {

/// Sets the load, in percent, that every program reads from now on.
void SetCpuLoad(int percent);
/// Removes the statistics, as on a system that keeps none.
void RemoveCpuStatistics();

/// The load of the machine that Wine runs on.
class HostLoad {
 public:
  /// Returns the busy share of the processor time since the previous call, 0 to 100; 0 at the first call.
  [[nodiscard]] int Percent();

 private:
  double busy_ = 0;
  double total_ = 0;
};

}  // namespace qdix::e2e
