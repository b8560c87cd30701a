#include "os/simulated/simulated_machine.h"

#include <algorithm>
#include <array>

#include "base/date.h"
#include "base/text.h"

namespace qdix::os {

namespace {

/// The address space of a process, and what a small program uses of it.
constexpr std::uint32_t kAddressSpaceBytes = 0x7FBF0000U;
constexpr std::uint32_t kProgramBytes = 0x00800000U;

constexpr double kMsPerDay = 24.0 * 60 * 60 * 1000;

template <class Accesses>
std::vector<std::string> NamesFrom(const Accesses& accesses, std::size_t first_call) {
  std::vector<std::string> names;
  for (const auto& access : accesses) {
    if (access.call > first_call) names.push_back(access.name);
  }
  return names;
}

}  // namespace

SimulatedMachine::SimulatedMachine()
    : system_{memory_, registry_,    *this,      windows_, dialogs_, *this,   *this,
              shell_,  shell_files_, processor_, files_,   files_,   drives_, *this} {}

void SimulatedMachine::SetMemory(std::uint32_t total_physical, std::uint32_t available_physical,
                                 std::uint32_t total_page_file, std::uint32_t available_page_file) {
  MemoryStatus status;
  status.memory_load_percent =
      total_physical == 0
          ? 0
          : 100 - static_cast<std::uint32_t>(std::uint64_t{available_physical} * 100 / total_physical);
  status.total_physical = total_physical;
  status.available_physical = available_physical;
  status.total_page_file = total_page_file;
  status.available_page_file = available_page_file;
  status.total_virtual = kAddressSpaceBytes;
  status.available_virtual = kAddressSpaceBytes - kProgramBytes;
  memory_.SetStatus(status);
}

void SimulatedMachine::SetRegistryValue(KeyHandle root, const std::string& path, const std::string& name,
                                        const std::string& text) {
  SetRegistryBytes(root, path, name, kRegSz, text + '\0');
}

void SimulatedMachine::SetRegistryBytes(KeyHandle root, const std::string& path, const std::string& name,
                                        std::uint32_t type, const std::string& bytes) {
  registry_.SetValue(root, path, name, {type, bytes});
}

std::optional<std::string> SimulatedMachine::RegistryText(KeyHandle root, const std::string& path,
                                                          const std::string& name) const {
  const auto value = registry_.Value(root, path, name);
  if (!value || value->type != kRegSz) return std::nullopt;
  return std::string(base::CutAtNul(value->bytes));
}

std::map<std::string, std::string> SimulatedMachine::RegistryTexts(KeyHandle root,
                                                                   const std::string& path) const {
  std::map<std::string, std::string> texts;
  for (const auto& [name, value] : registry_.Values(root, path)) {
    if (value.type == kRegSz) texts[name] = std::string(base::CutAtNul(value.bytes));
  }
  return texts;
}

std::vector<std::string> SimulatedMachine::WrittenValueNames(std::size_t first_call) const {
  return NamesFrom(registry_.WrittenValues(), first_call);
}

std::vector<std::string> SimulatedMachine::QueriedValueNames() const {
  return NamesFrom(registry_.QueriedValues(), 0);
}

void SimulatedMachine::ClearRecords() {
  log_.ClearCalls();
  registry_.ClearAccesses();
  memory_.ClearAllocations();
  dialogs_.ClearBoxes();
  shell_.ClearRequests();
}

void SimulatedMachine::SetCpuLoad(std::uint32_t percent) {
  std::string bytes;
  for (unsigned shift = 0; shift < 32; shift += 8) bytes += static_cast<char>((percent >> shift) & 0xFFU);
  SetCpuLoadBytes(bytes);
}

void SimulatedMachine::SetCpuLoadBytes(const std::string& bytes) {
  for (const char* key : {"PerfStats\\StartStat", "PerfStats\\StatData"}) {
    SetRegistryBytes(kHkeyDynData, key, "KERNEL\\CPUUsage", kRegDword, bytes);
  }
}

void SimulatedMachine::AdvanceMs(std::int64_t ms) {
  SetNow(now_days_ + static_cast<double>(ms) / kMsPerDay);
  tick_count_ms_ += static_cast<std::uint32_t>(ms);
}

void SimulatedMachine::PumpEvents() {
  ++pumps_;
  if (on_pump_) on_pump_(pumps_);
}

void SimulatedMachine::WaitMs(std::uint32_t ms) {
  log_.Record("WaitMs", std::to_string(ms));
  PumpEvents();
  AdvanceMs(ms);
}

double SimulatedMachine::Now() {
  log_.Record("Now");
  return now_days_;
}

std::uint32_t SimulatedMachine::GetTickCount() {
  log_.Record("GetTickCount");
  return tick_count_ms_;
}

/// Uses the format "dddd, MMMM d, yyyy" of an English Windows.
std::string SimulatedMachine::LongDate(double days) {
  constexpr std::array<const char*, 7> kWeekdays{"Saturday",  "Sunday",   "Monday", "Tuesday",
                                                 "Wednesday", "Thursday", "Friday"};
  constexpr std::array<const char*, 12> kMonths{"January",   "February", "March",    "April",
                                                "May",       "June",     "July",     "August",
                                                "September", "October",  "November", "December"};
  if (log_.RecordAndFail("LongDate", std::to_string(days))) return {};
  const auto date = base::DaysToDate(days);
  if (!date) return {};
  return std::string(kWeekdays[static_cast<std::size_t>(date->weekday)]) + ", " +
         kMonths[static_cast<std::size_t>(date->month - 1)] + " " + std::to_string(date->day) + ", " +
         std::to_string(date->year);
}

bool SimulatedMachine::MutexExistedBefore(const char* name) {
  if (log_.RecordAndFail("MutexExistedBefore", name)) return false;
  return !mutexes_.insert(name).second || other_copy_;
}

std::string SimulatedMachine::ModuleFileName() {
  return log_.RecordAndFail("ModuleFileName") ? std::string() : module_file_name_;
}

void SimulatedMachine::AddProgram(const std::string& name) {
  programs_.insert(base::UpperAscii(name));
  if (name.find('\\') != std::string::npos) files_.Write(name, "MZ");
}

void SimulatedMachine::RemoveProgram(const std::string& name) {
  programs_.erase(base::UpperAscii(name));
  files_.Erase(name);
}

bool SimulatedMachine::IsOnEmptyDrive(const std::string& path) const {
  return path.size() > 1 && path[1] == ':' && empty_drives_.contains(base::UpperAscii(path.substr(0, 1)));
}

std::int32_t SimulatedMachine::CreateProcessA(const std::string& command_line) {
  if (log_.RecordAndFail("CreateProcessA", command_line)) return kErrorFileNotFound;
  const bool is_quoted = command_line.starts_with('"');
  const std::size_t begin = is_quoted ? 1 : 0;
  if (IsOnEmptyDrive(command_line.substr(begin))) return kErrorNotReady;
  for (std::size_t end = begin; end < command_line.size();) {
    end = std::min(command_line.find(is_quoted ? '"' : ' ', end + 1), command_line.size());
    if (!programs_.contains(base::UpperAscii(command_line.substr(begin, end - begin)))) {
      if (is_quoted) break;
      continue;
    }
    started_programs_.push_back(command_line);
    return kErrorSuccess;
  }
  return kErrorFileNotFound;
}

bool SimulatedMachine::SetCurrentDirectoryA(const std::string& folder) {
  if (log_.RecordAndFail("SetCurrentDirectoryA", folder)) return false;
  if (IsOnEmptyDrive(folder) || !folders_.contains(base::UpperAscii(folder))) return false;
  current_folder_ = folder;
  return true;
}

bool SimulatedMachine::ExitWindowsEx(std::uint32_t flags, std::uint32_t reserved) {
  if (log_.RecordAndFail("ExitWindowsEx", std::to_string(flags) + ", " + std::to_string(reserved))) {
    return false;
  }
  if (flags == kEwxReboot) ++restarts_;
  return true;
}

}  // namespace qdix::os
