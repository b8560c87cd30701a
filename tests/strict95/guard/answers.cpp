// Answers questions that only later systems understand as the chosen system does: with failure, null or its
// own version.
#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

#include "tests/strict95/guard/lower_case.h"
#include "tests/strict95/guard/rules.h"

namespace qdix::strict95 {

namespace {

enum class Lacks {
  kBoth,
  kRtmOnly
};

constexpr std::uint32_t kNoLimit = 0xFFFFFFFF;

/// If the argument is in this range, the call gets this answer without reaching the system.
struct Answer {
  const char* function;
  unsigned argument;
  std::uint32_t first_unknown;
  std::uint32_t last_unknown;
  std::uint32_t answer;
  Lacks who;
};

constexpr Answer kAnswers[] = {
    // Windows 95 knows the colours up to COLOR_INFOBK, Windows 98 also those of gradients and links.
    {"GetSysColor", 1, 25, kNoLimit, 0, Lacks::kRtmOnly},
    {"GetSysColorBrush", 1, 25, kNoLimit, 0, Lacks::kRtmOnly},
    {"GetSysColor", 1, 29, kNoLimit, 0, Lacks::kBoth},
    {"GetSysColorBrush", 1, 29, kNoLimit, 0, Lacks::kBoth},
    // Windows 98 added the wheel and the screen saver's state, and further up the tracking of the active
    // window
    // and the foreground lock.
    {"SystemParametersInfoA", 1, 0x5F, kNoLimit, 0, Lacks::kRtmOnly},
    {"SystemParametersInfoA", 1, 0x73, 0x0FFF, 0, Lacks::kBoth},
    {"SystemParametersInfoA", 1, 0x1010, 0x1FFF, 0, Lacks::kBoth},
    {"SystemParametersInfoA", 1, 0x2006, kNoLimit, 0, Lacks::kBoth},
    {"GetSystemMetrics", 1, 76, kNoLimit, 0, Lacks::kRtmOnly},
    {"GetSystemMetrics", 1, 84, kNoLimit, 0, Lacks::kBoth},
};

constexpr std::uint32_t kHandCursor = 32649;

/// Returns the name of a library in lower case, without folder and extension.
std::string LibraryName(const std::string& path) {
  const std::string file_name = path.substr(path.find_last_of('\\') + 1);
  return LowerCase(file_name.substr(0, file_name.find('.')));
}

std::string LibraryName(HMODULE module) {
  char path[MAX_PATH] = "";
  GetModuleFileNameA(module, path, sizeof path);
  return LibraryName(std::string(path));
}

/// Returns null if not even Windows ME has the function.
const Export* FindExport(const std::string& library, std::string_view name) {
  const Export* const end = kExports + kExportCount;
  const Export* const found = std::find_if(kExports, end, [&library, name](const Export& one) {
    return library == one.library && name == one.name;
  });
  return found == end ? nullptr : found;
}

void CheckLookup(Call& call) {
  const char* const name = call.Argument<const char*>(2);
  if (HIWORD(name) == 0) return;
  const Export* const found = FindExport(LibraryName(call.Argument<HMODULE>(1)), name);
  if (found != nullptr && found->support == Support::kOnlyFails) {
    Report(call, Rule::kLaterNames, Format("%s exists only to fail", name));
  }
  const Support last = ChosenMachine() == Machine::k98 ? Support::kLater : Support::kWorks;
  const bool is_there = found != nullptr && (found->support == Support::kWorks || found->support == last);
  if (!is_there) call.Refuse(0);
}

/// Gives the program the guard's entry for a looked-up function, as for an imported one.
void GuardLookup(HMODULE guard, Call& call) {
  const char* const name = call.Argument<const char*>(2);
  const std::size_t number = HIWORD(name) == 0 ? kImportCount : ImportNumber(name);
  if (call.result == 0 || number == kImportCount) return;
  system_functions[number] = reinterpret_cast<FARPROC>(static_cast<std::uintptr_t>(call.result));
  call.result = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(GetProcAddress(guard, name)));
}

void CheckLibrary(Call& call) {
  const std::string name = LibraryName(std::string(call.Argument<const char*>(1)));
  const bool is_known = std::any_of(kExports, kExports + kExportCount,
                                    [&name](const Export& one) { return name == one.library; });
  if (!is_known) call.Refuse(0);
}

void ReportVersion(Call& call) {
  if (call.result == 0) return;
  auto& version = *call.Argument<OSVERSIONINFOA*>(1);
  const bool is_98 = ChosenMachine() == Machine::k98;
  version.dwMajorVersion = 4;
  version.dwMinorVersion = is_98 ? 10 : 0;
  version.dwBuildNumber = is_98 ? 0x040A07CE : 0x040003B6;
  version.dwPlatformId = VER_PLATFORM_WIN32_WINDOWS;
  version.szCSDVersion[0] = '\0';
}

void TellSmallMemory(Call& call) {
  auto& memory = *call.Argument<MEMORYSTATUS*>(1);
  memory.dwTotalPhys = std::min<SIZE_T>(memory.dwTotalPhys, kRtmMemoryBytes);
  memory.dwAvailPhys = std::min<SIZE_T>(memory.dwAvailPhys, kRtmMemoryBytes);
}

}  // namespace

void AddAnswers(Watches& watches, HMODULE guard) {
  for (const Answer& row : kAnswers) {
    if (row.who == Lacks::kRtmOnly && ChosenMachine() != Machine::kRtm) continue;
    watches.Before(row.function, [&row](Call& call) {
      const std::uint32_t asked = call.Argument(row.argument);
      if (row.first_unknown <= asked && asked <= row.last_unknown) call.Refuse(row.answer);
    });
  }
  if (ChosenMachine() == Machine::kRtm) {
    watches.Before("LoadCursorA", [](Call& call) {
      if (call.Argument(1) == 0 && call.Argument(2) == kHandCursor) call.Refuse(0);
    });
    watches.After("GlobalMemoryStatus", &TellSmallMemory);
  }
  watches.Before("GetProcAddress", &CheckLookup);
  watches.After("GetProcAddress", [guard](Call& call) { GuardLookup(guard, call); });
  watches.Before("LoadLibraryA", &CheckLibrary);
  watches.After("GetVersionExA", &ReportVersion);
}

}  // namespace qdix::strict95
