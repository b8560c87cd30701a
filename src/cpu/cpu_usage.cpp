#include "cpu/cpu_usage.h"

#include <algorithm>
#include <numeric>

#include "base/numbers.h"
#include "base/text.h"

namespace qdix::cpu {

namespace {

constexpr const char* kStartKey = "PerfStats\\StartStat";
constexpr const char* kDataKey = "PerfStats\\StatData";
/// A single value name; the backslash is part of it.
constexpr const char* kLoadValue = "KERNEL\\CPUUsage";

/// Lowest bar of the graph in percent: an idle machine still shows a line. The samples start with it too,
/// which makes the first averages rise gently.
constexpr std::int32_t kFloorPercent = 4;

}  // namespace

CpuUsage::CpuUsage(os::Registry& registry, host::Boxes& boxes, registry::SettingsStore& settings,
                   screens::QuondixScreen& quondix, screens::StartupScreen& startup)
    : registry_(registry), boxes_(boxes), settings_(settings), quondix_(quondix), startup_(startup) {
  startup_.Slider7.OnMove = base::Callback<base::Status(std::int32_t)>::To<&CpuUsage::Slider7_Change>(*this);
}

void CpuUsage::LoadUpdateInterval() { startup_.Slider7.SetNearest(settings_.Get(setting::kCpu)); }

base::Status CpuUsage::Slider7_Change(std::int32_t position) {
  settings_.Save(setting::kCpu, position);
  return base::kDone;
}

bool CpuUsage::OpenStatistics(const char* path, os::KeyHandle& key) {
  return registry_.RegOpenKeyExA(os::kHkeyDynData, path, os::kKeyQueryValue, key) == os::kErrorSuccess;
}

std::int32_t CpuUsage::QueryLoad(os::KeyHandle key) {
  std::array<std::uint8_t, 4> bytes{};
  std::uint32_t type = os::kRegDword;
  std::uint32_t size_bytes = bytes.size();
  if (registry_.RegQueryValueExA(key, kLoadValue, type, bytes.data(), size_bytes) != os::kErrorSuccess) {
    return 0;
  }
  const std::uint32_t reading = bytes[0] | std::uint32_t{bytes[1]} << 8U | std::uint32_t{bytes[2]} << 16U |
                                std::uint32_t{bytes[3]} << 24U;
  return static_cast<std::int32_t>(reading);
}

void CpuUsage::StartCpuStatistics() {
  os::KeyHandle key = 0;
  if (!OpenStatistics(kStartKey, key)) return;
  static_cast<void>(QueryLoad(key));  // the query itself starts the statistic
  registry_.RegCloseKey(key);
}

void CpuUsage::FirstCPUUSAGE() {
  os::KeyHandle key = 0;
  if (!OpenStatistics(kDataKey, key)) return;
  const base::Result<std::uint8_t> reading = base::ToByte(QueryLoad(key));
  registry_.RegCloseKey(key);
  recent_samples_.fill(kFloorPercent);
  if (reading.Ok()) {
    oldest_sample_ = reading.Value();
  } else {
    Report(reading.Error());
  }
}

// Between two display updates the opened keys stay open, up to four per update. The statistic has always been
// read like this.
void CpuUsage::CPUUsage() {
  os::KeyHandle key = 0;
  if (!OpenStatistics(kDataKey, key)) return;
  const base::Result<bool> displayed = TakeReading(QueryLoad(key));
  if (displayed.ValueOr(true)) registry_.RegCloseKey(key);
  if (!displayed.Ok()) Report(displayed.Error());
}

base::Result<bool> CpuUsage::TakeReading(std::int32_t reading) {
  const base::Result<std::uint8_t> oldest = base::ToByte(recent_samples_.back());
  if (!oldest.Ok()) return oldest.Error();
  oldest_sample_ = oldest.Value();
  std::shift_right(recent_samples_.begin(), recent_samples_.end(), 1);
  recent_samples_.front() = reading;

  const std::int32_t ticks_per_update = startup_.Slider7.Value();
  cpu_tick_count_ =
      ticks_per_update > cpu_tick_count_ ? static_cast<std::uint8_t>(cpu_tick_count_ + 1) : std::uint8_t{1};
  if (cpu_tick_count_ != 1) return false;
  const base::Status shown = ShowAverage();
  if (!shown.Ok()) return shown.Error();
  return true;
}

base::Status CpuUsage::ShowAverage() {
  const std::int32_t average = AverageCpuUsage();
  quondix_.lblUSAGE.SetCaption(base::TextOf(average) + " %");
  return quondix_.XGraphMeter1.Update(std::max(average, kFloorPercent));
}

std::int32_t CpuUsage::AverageCpuUsage() const {
  constexpr double kSampleCount = 8;
  const double sum =
      std::accumulate(recent_samples_.begin(), recent_samples_.end(), static_cast<double>(oldest_sample_));
  return static_cast<std::int32_t>(base::Truncate(sum / kSampleCount));
}

void CpuUsage::Report(const base::RuntimeError& error) {
  std::string text = "error in CPU Usage Code";
  text += base::kLineBreak;
  text += error.Description() + " - err number " + base::TextOf(error.number);
  boxes_.Show(text);
}

}  // namespace qdix::cpu
