#include "cpu/cpu_usage.h"

namespace qdix::cpu {

namespace {

constexpr const char* kIntervalKey = "CPU";
constexpr double kDefaultInterval = 1;

}  // namespace

CpuUsage::CpuUsage(shell::SettingsStore& settings, screens::StartupScreen& screen)
    : settings_(settings), screen_(screen) {
  screen_.Slider7.OnMove = base::Callback<base::Status(std::int32_t)>::To<&CpuUsage::Slider7_Change>(*this);
}

void CpuUsage::LoadUpdateInterval() {
  screen_.Slider7.SetNearest(settings_.GetNumber(shell::kSettingsSection, kIntervalKey, kDefaultInterval));
}

base::Status CpuUsage::Slider7_Change(std::int32_t position) {
  settings_.SaveNumber(shell::kSettingsSection, kIntervalKey, position);
  return base::kDone;
}

}  // namespace qdix::cpu
