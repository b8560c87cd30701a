#include "tests/soak/days.h"

#include <cmath>

#include "base/numbers.h"
#include "tests/soak/live_allocations.h"

namespace qdix::tests {

namespace {

constexpr std::int64_t kSlotMs = 10 * kMinuteMs;
constexpr int kSlotsPerHour = 6;
constexpr int kSlotsPerDay = 24 * kSlotsPerHour;
constexpr int kStartupDelaySeconds = 45;
/// Half a day before the system's millisecond count wraps round to 0.
constexpr std::int64_t kUpTimeAtStartMs = (std::int64_t{1} << 32U) - 12 * 60 * kMinuteMs;
/// 5,000 pumps with nothing to do take about 85 ms.
constexpr int kPumpsPerStep = 1000;
constexpr std::int64_t kPumpStepMs = 17;
constexpr const char* kLoadKey = "PerfStats\\StatData";
/// More than the number of settings.
constexpr std::size_t kMaxSettings = 30;
/// Allows for labels whose texts are sometimes long and sometimes short.
constexpr std::int64_t kSlackAllocations = 40;

}  // namespace

Days::Days(unsigned seed) : random_(seed) { Start(); }

void Days::Start() {
  rig_.Store("Settings", "AutoActive", "1");
  rig_.Store("Settings", "TimeActive", "1");
  rig_.Store("Settings", "MinRAM", "30");
  rig_.Store("Settings", "TryTimes", "2");
  rig_.Store("Startup", "StartupTime", std::to_string(kStartupDelaySeconds));
  rig_.Store("Startup", "StartupRAM", "24");
  rig_.WriteSystemIni("[386Enh]\r\nEMMExclude=A000\r\n[vcache]\r\nMinFileCache=1024\r\n");
  rig_.machine.AdvanceMs(kUpTimeAtStartMs);
  rig_.machine.SetNow(kNoon21November2026);
  rig_.machine.SetCpuLoad(conditions_.load_percent);
  rig_.SetAvailableMb(conditions_.available_mb);
  rig_.machine.WhileBoxIsOpen([this] { AnswerBox(); });
  rig_.machine.OnPump([this](int number) { InsidePump(number); });
  taskbar_ = rig_.machine.OpenWindow("Shell_TrayWnd", "");
  rig_.Start();
  counter_date_ = rig_.machine.GetSystem().clock.LongDate(kNoon21November2026);
  forecast_.emplace(rig_, conditions_, kStartupDelaySeconds);
  activate_ = rig_.program->Form().OnActivate;
  rig_.program->Form().OnActivate = ui::Handler::To<&Days::Activated>(*this);
  up_time_.emplace(rig_.program->MainWindow().Timer6, rig_.timers);
  up_time_->ExpectTickAfter(65000);
  up_time_->After = [this] { CheckUpTime(); };
}

void Days::Step(std::int64_t ms) {
  rig_.machine.AdvanceMs(ms);
  rig_.timers.AdvanceMs(ms);
}

/// Advances from tick to tick, which keeps the machine's clock right during each tick.
void Days::Pass(std::int64_t ms) {
  const std::int64_t end_ms = rig_.timers.NowMs() + ms;
  while (rig_.timers.NowMs() < end_ms) {
    const std::int64_t left_ms = end_ms - rig_.timers.NowMs();
    Step(std::min(rig_.timers.MsToNextTick().value_or(left_ms), left_ms));
  }
}

void Days::InsidePump(int number) {
  if (number % kPumpsPerStep == 0) Pass(kPumpStepMs);
}

base::Status Days::Activated() {
  forecast_->WindowActivated();
  return activate_();
}

void Days::Run(unsigned long days) {
  rig_.RemoveGraph();
  for (unsigned long slot = 1; slot <= days * kSlotsPerDay; ++slot) {
    SCOPED_TRACE(Moment());
    ChangeConditions();
    if (slot > 1 && Chance(4)) Hand();
    Pass(kSlotMs);
    CheckSlot();
    if (slot % kSlotsPerHour == 0) CheckHour();
    if (slot % kSlotsPerDay == 0) CheckDay();
    if (testing::Test::HasFailure()) return;
  }
  rig_.program->Form().Unload();
  EXPECT_EQ(rig_.machine.TrayIconCount(), 0);
  EXPECT_EQ(rig_.machine.OpenKeyCount(), forecast_->TakeKeysLeftOpen());
}

std::string Days::Moment() const {
  const std::int64_t minutes = rig_.timers.NowMs() / kMinuteMs;
  return "day " + std::to_string(minutes / 1440) + ", minute " + std::to_string(minutes % 1440);
}

void Days::CheckUpTime() {
  const std::int64_t up_ms = (kUpTimeAtStartMs + rig_.timers.NowMs() + waited_ms_) & 0xFFFFFFFF;
  const auto minutes = static_cast<std::int64_t>(std::nearbyint(static_cast<double>(up_ms) / 60000));
  EXPECT_EQ(rig_.program->StartupScreen().lblTimeRunning.Caption(),
            "Your system has been running for " + std::to_string(up_ms / 3600000) + " hour(s) and " +
                std::to_string(minutes % 60) + " minutes.");
}

/// Checks that nothing is held between two events and that all figures are right.
void Days::CheckSlot() {
  ASSERT_FALSE(rig_.program->Form().Unloaded());
  allocated_ += static_cast<std::int64_t>(rig_.machine.AllAllocations().size());
  EXPECT_EQ(allocated_, forecast_->Blocks());
  EXPECT_EQ(warned_, forecast_->Warnings());
  EXPECT_TRUE(rig_.machine.OutstandingBlocks().empty());
  EXPECT_EQ(rig_.machine.TrayIconCount(), 1);
  EXPECT_TRUE(rig_.machine.Misuses().empty());
  EXPECT_NE(
      rig_.program->AutomaticScreen().lblCounter.Caption().find(forecast_->CounterText() + counter_date_),
      std::string::npos)
      << rig_.program->AutomaticScreen().lblCounter.Caption() << " instead of " << forecast_->CounterText();
  EXPECT_EQ(rig_.program->TimeIntervalsScreen().lblNextRelease.Caption(), forecast_->NextReleaseText());
  forecast_->ExpectNothingLate();
  up_time_->ExpectNotLate();
  rig_.machine.ClearRecords();
}

/// The only handles that stay open are those of the load readings between two updates of the graph.
void Days::CheckHour() {
  EXPECT_EQ(rig_.machine.OpenFileCount(), 0);
  const int left_open = forecast_->TakeKeysLeftOpen();
  EXPECT_EQ(rig_.machine.CloseHandlesOf(os::kHkeyDynData, kLoadKey), left_open);
  EXPECT_EQ(rig_.machine.OpenKeyCount(), 0);
  report_.keys_left_open += left_open;
}

void Days::CheckDay() {
  for (const char* section : {"Settings", "Startup"}) {
    const auto texts = rig_.machine.RegistryTexts(os::kHkeyCurrentUser, ProgramRig::SectionPath(section));
    EXPECT_LE(texts.size(), kMaxSettings) << section;
  }
  if (live_allocations_ == 0) live_allocations_ = LiveAllocations();
  EXPECT_LE(LiveAllocations(), live_allocations_ + kSlackAllocations);
}

DaysReport Days::Report() const {
  DaysReport report = report_;
  report.ticks = forecast_->Ticks();
  report.blocks = forecast_->Blocks();
  report.releases = forecast_->Releases();
  report.warnings = forecast_->Warnings();
  return report;
}

}  // namespace qdix::tests
