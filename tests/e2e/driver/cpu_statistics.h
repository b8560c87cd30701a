// The performance statistics of Windows 95, 98 and ME, which Wine knows but does not keep: played from here.
#pragma once

namespace qdix::e2e {

/// From now on every program reads this load, in percent.
void SetCpuLoad(int percent);
/// Takes the statistics away, as on a system that keeps none.
void RemoveCpuStatistics();

/// The load of the machine that Wine runs on.
class HostLoad {
 public:
  /// Busy share of the processor time since the last question, 0 to 100; 0 at the first.
  [[nodiscard]] int Percent();

 private:
  double busy_ = 0;
  double total_ = 0;
};

}  // namespace qdix::e2e
