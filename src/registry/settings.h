// The stored settings of the main window, each once: where it is stored, how its text is read, and what a
// missing one means. Loading and saving use these rows, and the manual lists them. A machine's own value in
// place of a fixed default comes from the code that loads the setting.
#pragma once

#include <array>

namespace qdix::registry {

/// The sections are keys below the program's own.
inline constexpr const char* kSettingsSection = "Settings";
inline constexpr const char* kStartupSection = "Startup";

/// The place of a stored text.
struct Setting {
  const char* section;
  const char* key;
};
/// Read as the leading number of its text.
struct NumberSetting : Setting {
  double missing;
};
struct TextSetting : Setting {
  const char* missing;
};
/// Stored as 1 or 0.
struct SwitchSetting : Setting {
  bool missing;
};
/// What a missing one means depends on the machine.
struct MachineSetting : Setting {};

}  // namespace qdix::registry

/// The rows. In a namespace of their own below qdix, so that every folder can call them setting::kName.
namespace qdix::setting {

using registry::kSettingsSection;
using registry::kStartupSection;
using registry::MachineSetting;
using registry::NumberSetting;
using registry::SwitchSetting;
using registry::TextSetting;

// Manual release
/// Amount in megabytes of 1,040,000 bytes.
inline constexpr MachineSetting kFreeUpRam{{kSettingsSection, "FreeUpRAM"}};
/// Passes of every release but the one before a launch.
inline constexpr TextSetting kTryTimes{{kSettingsSection, "TryTimes"}, "1"};

// Automatic release
inline constexpr SwitchSetting kAutoActive{{kSettingsSection, "AutoActive"}, false};
/// Available memory below which it releases, in megabytes of 1,024,000 bytes.
inline constexpr MachineSetting kMinRam{{kSettingsSection, "MinRAM"}};
/// Amount in megabytes of 1,040,000 bytes.
inline constexpr MachineSetting kAutoQuondix{{kSettingsSection, "AutoQuondix"}};
/// Seconds between two checks.
inline constexpr NumberSetting kAutoSecs{{kSettingsSection, "AutoSecs"}, 20};
inline constexpr SwitchSetting kCpuAutoActive{{kSettingsSection, "CPUAutoActive"}, true};
/// Average load in percent from which the release waits.
inline constexpr TextSetting kAutoCpu{{kSettingsSection, "AutoCPU"}, "80"};
/// Day on which the counter started, as a serial date.
inline constexpr MachineSetting kCounterDate{{kSettingsSection, "CounterDate"}};
/// Automatic releases since then.
inline constexpr NumberSetting kCounterValue{{kSettingsSection, "CounterValue"}, 0};

// Timed release
inline constexpr SwitchSetting kTimeActive{{kSettingsSection, "TimeActive"}, false};
/// Amount in megabytes of 1,040,000 bytes.
inline constexpr MachineSetting kTimeQuondix{{kSettingsSection, "TimeQuondix"}};
/// 1 for minutes, anything else for hours.
inline constexpr NumberSetting kTimeUnit{{kSettingsSection, "TimeUnit"}, 1};
/// Interval in minutes, kept while hours are chosen.
inline constexpr NumberSetting kTimeMinutes{{kStartupSection, "TimeMinutes"}, 30};
/// Interval in hours, kept while minutes are chosen.
inline constexpr NumberSetting kTimeHours{{kStartupSection, "TimeHours"}, 1};
inline constexpr SwitchSetting kCpuTimeActive{{kSettingsSection, "CPUTimeActive"}, true};
/// Average load in percent from which the release waits.
inline constexpr TextSetting kTimeCpu{{kSettingsSection, "TimeCPU"}, "80"};

// Release after start-up
/// Amount in megabytes of 1,040,000 bytes.
inline constexpr MachineSetting kStartupRam{{kStartupSection, "StartupRAM"}};
/// Seconds from the start of the program to the release.
inline constexpr TextSetting kStartupTime{{kStartupSection, "StartupTime"}, "60"};

// Release before a launch
/// Share of the memory: 1 for 33 %, 2 for 50 %, 3 for 66 %, anything else for none.
inline constexpr TextSetting kLauncherRam{{kSettingsSection, "Launcher RAM"}, "1"};
/// Passes, 1 to 5.
inline constexpr TextSetting kLauncherRetry{{kSettingsSection, "Launcher Retry"}, "1"};

// The program
/// Silences the warning of a release that got no memory.
inline constexpr SwitchSetting kWarnings{{kSettingsSection, "Warnings"}, false};
/// Refreshes of the display for each bar of the CPU graph, 1 to 5.
inline constexpr NumberSetting kCpu{{kSettingsSection, "CPU"}, 1};
/// Number of the tab that is opened at the next start, from 0.
inline constexpr NumberSetting kLastTab{{kSettingsSection, "LastTab"}, 0};
/// How the window starts: 1 shown, 2 minimised, 3 hidden.
inline constexpr NumberSetting kStartDisplay{{kStartupSection, "StartDisplay"}, 1};

}  // namespace qdix::setting

namespace qdix::registry {

/// All of them, for whoever treats every setting alike.
inline constexpr std::array<const Setting*, 25> kAllSettings{
    &setting::kFreeUpRam,     &setting::kTryTimes,     &setting::kAutoActive,    &setting::kMinRam,
    &setting::kAutoQuondix,   &setting::kAutoSecs,     &setting::kCpuAutoActive, &setting::kAutoCpu,
    &setting::kCounterDate,   &setting::kCounterValue, &setting::kTimeActive,    &setting::kTimeQuondix,
    &setting::kTimeUnit,      &setting::kTimeMinutes,  &setting::kTimeHours,     &setting::kCpuTimeActive,
    &setting::kTimeCpu,       &setting::kStartupRam,   &setting::kStartupTime,   &setting::kLauncherRam,
    &setting::kLauncherRetry, &setting::kWarnings,     &setting::kCpu,           &setting::kLastTab,
    &setting::kStartDisplay};

}  // namespace qdix::registry
