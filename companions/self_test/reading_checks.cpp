#include "self_test/reading_checks.h"

#include <array>
#include <string_view>

#include "base/numbers.h"
#include "base/text.h"
#include "cpu/processor_name.h"
#include "os/error_codes.h"
#include "registry/registry_key.h"

namespace qdix::self_test {

namespace {

constexpr std::size_t kRoom = 260;
constexpr std::uint32_t kFatOnlyBytesPerSector = 512;
/// Days since 30 December 1899: 1 January 1995 and 1 January 2100.
constexpr double kFirstDay = 34700;
constexpr double kLastDay = 73051;

std::string WindowsFolder(os::Files& files) {
  std::array<char, kRoom> buffer{};
  const std::uint32_t length = files.GetWindowsDirectoryA(buffer.data(), buffer.size());
  return length < buffer.size() ? std::string(buffer.data()) : std::string();
}

/// Returns "C:\" for a path on that drive.
std::string DriveOf(const std::string& path) { return path.substr(0, 2) + "\\"; }

Outcome CheckClock(const os::System& real) {
  const double now = real.clock.Now();
  if (now < kFirstDay || now > kLastDay) return Outcome::Failed("the date is before 1995 or after 2099");
  const std::string date = real.clock.LongDate(now);
  return date.empty() ? Outcome::Failed("today's date cannot be formatted") : Outcome::Ok(date);
}

Outcome PumpWaits(const os::System& real) {
  constexpr std::uint32_t kWaitMs = 100;
  // The clock of Windows 95, 98 and ME ticks every 55 ms.
  constexpr std::uint32_t kTickMs = 55;
  const std::uint32_t before = real.clock.GetTickCount();
  real.event_pump.PumpEvents();
  real.event_pump.WaitMs(kWaitMs);
  const std::uint32_t waited_ms = real.clock.GetTickCount() - before;
  return Outcome::Expect(waited_ms + kTickMs >= kWaitMs, "a 100 ms wait ended too early");
}

Outcome CheckMemoryStatus(const os::System& real) {
  const os::MemoryStatus status = real.memory.GlobalMemoryStatus();
  if (status.total_physical == 0) return Outcome::Failed("the total memory is reported as 0");
  if (status.available_physical > status.total_physical) {
    return Outcome::Failed("available memory exceeds total memory");
  }
  return Outcome::Expect(status.memory_load_percent <= 100, "the memory load exceeds 100 %");
}

Outcome WindowsFolderIsThere(const os::System& real) {
  const std::string folder = WindowsFolder(real.files);
  if (folder.empty()) return Outcome::Failed("the path is unknown");
  const std::uint32_t attributes = real.files.GetFileAttributesA(folder.c_str());
  const bool is_folder =
      attributes != os::kInvalidFileAttributes && (attributes & os::kFileAttributeDirectory) != 0;
  return is_folder ? Outcome::Ok(folder) : Outcome::Failed(folder + " is not a folder");
}

Outcome DrivesAreListed(const os::System& real) {
  std::array<char, kRoom> roots{};
  const std::uint32_t length = real.drives.GetLogicalDriveStringsA(roots.size(), roots.data());
  if (length == 0 || length > roots.size()) return Outcome::Failed("the list cannot be read");
  std::string remark;
  bool has_windows = false;
  const std::string wanted = DriveOf(WindowsFolder(real.files));
  for (const char* root = roots.data(); *root != '\0'; root += std::string_view(root).size() + 1) {
    if (!remark.empty()) remark += ' ';
    remark += root + base::TextOf(static_cast<std::int32_t>(real.drives.GetDriveTypeA(root)));
    if (base::EqualsIgnoringCase(root, wanted)) has_windows = true;
  }
  return has_windows ? Outcome::Ok(remark) : Outcome::Failed("the Windows drive is missing: " + remark);
}

Outcome CheckWindowsDrive(const os::System& real) {
  const std::string root = DriveOf(WindowsFolder(real.files));
  os::DiskClusters clusters;
  std::uint32_t flags = 0;
  if (real.drives.GetDriveTypeA(root.c_str()) != os::kDriveFixed)
    return Outcome::Failed("it is not a fixed disk");
  if (real.drives.GetDiskFreeSpaceA(root.c_str(), clusters) != 1)
    return Outcome::Failed("its free space cannot be read");
  if (clusters.bytes_per_sector < kFatOnlyBytesPerSector ||
      clusters.free_clusters > clusters.total_clusters) {
    return Outcome::Failed("its free space is invalid");
  }
  if (real.drives.GetVolumeInformationA(root.c_str(), flags) != 1) {
    return Outcome::Failed("its file system cannot be read");
  }
  os::DiskBytes bytes;
  if (real.drives.GetDiskFreeSpaceExA(root.c_str(), bytes) != 1) return Outcome::Ok("no GetDiskFreeSpaceEx");
  return Outcome::Expect(bytes.total_free <= bytes.total && bytes.total != 0, "its size is invalid");
}

Outcome RegistryReads(const os::System& real) {
  const auto there =
      registry::RegistryKey::Open(real.registry, os::kHkeyLocalMachine,
                                  "Software\\Microsoft\\Windows\\CurrentVersion", os::kKeyQueryValue);
  if (!there.IsOpen()) return Outcome::Failed("the Windows key cannot be opened");
  if (there.HasValue("QDIXTEST has no such value"))
    return Outcome::Failed("a value that does not exist was found");
  const auto missing =
      registry::RegistryKey::Open(real.registry, os::kHkeyLocalMachine, "QDIXTEST\\None", os::kKeyQueryValue);
  return Outcome::Expect(!missing.IsOpen(), "a key that does not exist was opened");
}

/// Reads the value once; negative if there is none.
std::int32_t Load(os::Registry& registry, const char* path) {
  os::KeyHandle key = 0;
  if (registry.RegOpenKeyExA(os::kHkeyDynData, path, os::kKeyQueryValue, key) != os::kErrorSuccess) return -1;
  std::array<std::uint8_t, 4> bytes{};
  std::uint32_t size_bytes = bytes.size();
  std::uint32_t type = 0;
  const std::int32_t code =
      registry.RegQueryValueExA(key, "KERNEL\\CPUUsage", type, bytes.data(), size_bytes);
  registry.RegCloseKey(key);
  if (code != os::kErrorSuccess || size_bytes != bytes.size()) return -1;
  // A load fits into the first byte.
  return bytes[1] == 0 && bytes[2] == 0 && bytes[3] == 0 ? bytes[0] : -1;
}

Outcome CheckLoadStatistic(const os::System& real) {
  constexpr std::int32_t kMaxPercent = 100;
  static_cast<void>(Load(real.registry, "PerfStats\\StartStat"));  // reading StartStat starts the statistic
  const std::int32_t percent = Load(real.registry, "PerfStats\\StatData");
  if (percent < 0) return Outcome::Failed("this system does not provide the statistic");
  if (percent > kMaxPercent) return Outcome::Failed("the load is " + base::TextOf(percent) + " %");
  return Outcome::Ok(base::TextOf(percent) + " %");
}

Outcome CheckProcessor(const os::System& real) {
  constexpr std::uint32_t kMeasuringMs = 30;
  const cpu::ProcessorIdentity identity = cpu::Identify(real.processor);
  if (cpu::NameOf(identity).empty()) return Outcome::Failed("it cannot be identified");
  if (!identity.has_time_stamp_counter) return Outcome::Ok("no time stamp counter");
  const os::CycleCount count = real.processor.CountCycles(kMeasuringMs);
  if (count.microseconds == 0) return Outcome::Ok("clock speed unknown");
  return Outcome::Ok(
      base::TextOf(base::ToInt32(static_cast<double>(count.cycles) / static_cast<double>(count.microseconds))
                       .ValueOr(0)) +
      " MHz");
}

Outcome ShellFoldersAreThere(const os::System& real) {
  for (const int number : {os::kDesktopFolder, os::kStartMenuFolder, os::kStartupFolder, os::kRecentFolder}) {
    const std::string folder = real.shell_files.SpecialFolder(number);
    const std::uint32_t attributes = real.files.GetFileAttributesA(folder.c_str());
    if (folder.empty() || attributes == os::kInvalidFileAttributes ||
        (attributes & os::kFileAttributeDirectory) == 0) {
      return Outcome::Failed("shell folder " + base::TextOf(number) + " is not a folder: \"" + folder + "\"");
    }
  }
  return Outcome::Ok();
}

Outcome OwnPathIsKnown(const os::System& real) {
  const std::string path = real.processes.ModuleFileName();
  const bool is_file =
      !path.empty() && real.files.GetFileAttributesA(path.c_str()) != os::kInvalidFileAttributes;
  return is_file ? Outcome::Ok(path) : Outcome::Failed("file not found: \"" + path + "\"");
}

Outcome FileIsLookedUp(const os::System& real) {
  constexpr std::size_t kDosNameLength = 12;
  os::FoundFile found;
  if (!real.files.FindFirstFileA(real.processes.ModuleFileName().c_str(), found)) {
    return Outcome::Failed("this program's file was not found");
  }
  if (found.dos_name.empty() || found.dos_name.size() > kDosNameLength) {
    return Outcome::Failed("\"" + found.dos_name + "\" is not a DOS name");
  }
  const std::string date = real.clock.LongDate(found.changed_days);
  return date.empty() ? Outcome::Failed("its date cannot be formatted")
                      : Outcome::Ok(found.dos_name + ", " + date);
}

Outcome WindowsAreFound(const os::System& real) {
  if (real.windows.FindWindowA("QDIXTEST has no such class", nullptr) != 0) {
    return Outcome::Failed("a window that does not exist was found");
  }
  const os::WindowHandle window = real.windows.FindWindowA(nullptr, nullptr);
  if (window == 0) return Outcome::Failed("no window was found");
  return Outcome::Expect(real.windows.GetWindowThreadProcessId(window) != 0, "a window has no thread");
}

/// Writes the file as a whole and reads single entries.
Outcome ProfileFileReads(const os::System& real, const std::string& own_folder) {
  constexpr std::string_view kContent =
      "[one]\r\nplain=text\r\nquoted=\" 4096 \"\r\n[386Enh]\r\ndevice=*a\r\nMinPagingFileSize=65536\r\n";
  const std::string path = own_folder + "\\READ.INI";
  const os::FileHandle file = real.files.CreateFileA(path.c_str(), os::kGenericWrite, os::kCreateAlways);
  if (file == os::kInvalidFile) return Outcome::Failed(path + " cannot be created");
  std::uint32_t written_bytes = 0;
  const bool is_written = real.files.WriteFile(file, kContent.data(), kContent.size(), written_bytes);
  real.files.CloseHandle(file);
  const auto entry = [&real, &path](const char* section, const char* key) {
    std::array<char, kRoom> buffer{};
    static_cast<void>(real.profile_files.GetPrivateProfileStringA(section, key, "none", buffer.data(),
                                                                  buffer.size(), path.c_str()));
    return std::string(buffer.data());
  };
  const bool is_read = entry("ONE", "Plain") == "text" && entry("one", "quoted") == " 4096 " &&
                       entry("386Enh", "minpagingfilesize") == "65536" && entry("386Enh", "other") == "none";
  real.profile_files.WritePrivateProfileStringA(nullptr, nullptr, nullptr, path.c_str());
  const bool is_deleted = real.files.DeleteFileA(path.c_str());
  if (!is_written) return Outcome::Failed(path + " cannot be written");
  if (!is_read) return Outcome::Failed("an entry was not read back as written");
  return Outcome::Expect(is_deleted, "the file cannot be deleted");
}

}  // namespace

void RunReadingChecks(Report& report, const os::System& real, const std::string& own_folder) {
  struct Reading {
    const char* name;
    Outcome (*check)(const os::System& real);
  };
  constexpr std::array<Reading, 13> kReadings{{
      {"Date and time", &CheckClock},
      {"Event pump", &PumpWaits},
      {"Memory status", &CheckMemoryStatus},
      {"Windows folder", &WindowsFolderIsThere},
      {"Drives and their types", &DrivesAreListed},
      {"Windows drive", &CheckWindowsDrive},
      {"Reading the registry", &RegistryReads},
      {"Processor load", &CheckLoadStatistic},
      {"Processor", &CheckProcessor},
      {"Shell folders", &ShellFoldersAreThere},
      {"Program path", &OwnPathIsKnown},
      {"Finding a file", &FileIsLookedUp},
      {"Windows of other programs", &WindowsAreFound},
  }};
  for (const Reading& reading : kReadings) {
    report.Run(reading.name, [&reading, &real] { return reading.check(real); });
  }
  report.Run("Reading an INI file", [&real, &own_folder] { return ProfileFileReads(real, own_folder); });
}

}  // namespace qdix::self_test
