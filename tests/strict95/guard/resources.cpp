// Resource balance: a program frees what it allocates exactly once, and never holds more at a time than the
// small heaps of Windows 95 can spare. Windows 95 has no call that counts a program's objects.
#include <algorithm>
#include <array>
#include <cstring>
#include <map>

#include "tests/strict95/guard/rules.h"

namespace qdix::strict95 {

namespace {

enum Kind {
  kCommonDevices,
  kDevices,
  kObjects,
  kMenus,
  kIcons,
  kTimers,
  kWindows,
  kKeys,
  kHandles,
  kSearches,
  kMemory,
  kLibraries,
  kKindCount
};

struct Budget {
  const char* name;
  /// The largest number that a program may hold at a time.
  int most;
};

/// In the order of Kind. All programs on Windows 95 share five common device contexts, one 64 KB heap for GDI
/// objects and another for the small parts of windows and menus.
constexpr std::array<Budget, kKindCount> kBudgets = {{
    {"common device contexts", 4},
    {"memory and printer device contexts", 24},
    {"GDI objects", 48},
    {"menus", 16},
    {"icons", 4},
    {"timers", 12},
    {"windows", 224},
    {"registry keys", 32},
    {"files and other handles", 16},
    {"file searches", 4},
    {"global memory blocks", 8},
    {"libraries", 4},
}};

enum class Place {
  kResult,
  kArgument,
  /// A word in the structure that the argument points to.
  kBehindArgument
};

enum class Success {
  kNotZero,
  kZero,
  kNotMinusOne,
  kAlways
};

struct Movement {
  const char* function;
  Kind kind;
  bool is_taken;
  Place place;
  unsigned argument;
  /// Offset of that word in bytes.
  int offset;
  Success success;
};

constexpr Movement Taken(const char* function, Kind kind, Success success = Success::kNotZero) {
  return {function, kind, true, Place::kResult, 0, 0, success};
}
constexpr Movement TakenBehind(const char* function, Kind kind, unsigned argument, int offset,
                               Success success) {
  return {function, kind, true, Place::kBehindArgument, argument, offset, success};
}
constexpr Movement Given(const char* function, Kind kind, unsigned argument,
                         Success success = Success::kNotZero) {
  return {function, kind, false, Place::kArgument, argument, 0, success};
}

constexpr Movement kMovements[] = {
    Taken("GetDC", kCommonDevices),
    Taken("BeginPaint", kCommonDevices),
    Given("ReleaseDC", kCommonDevices, 2, Success::kAlways),
    Taken("CreateCompatibleDC", kDevices),
    TakenBehind("PrintDlgA", kDevices, 1, 16, Success::kAlways),
    Given("DeleteDC", kDevices, 1),
    Taken("CreateCompatibleBitmap", kObjects),
    Taken("CreateFontA", kObjects),
    Taken("CreateSolidBrush", kObjects),
    Given("DeleteObject", kObjects, 1, Success::kAlways),
    Taken("CreatePopupMenu", kMenus),
    Given("DestroyIcon", kIcons, 1),
    Taken("CreateWindowExA", kWindows),
    TakenBehind("RegOpenKeyA", kKeys, 3, 0, Success::kZero),
    TakenBehind("RegOpenKeyExA", kKeys, 5, 0, Success::kZero),
    TakenBehind("RegCreateKeyA", kKeys, 3, 0, Success::kZero),
    TakenBehind("RegCreateKeyExA", kKeys, 8, 0, Success::kZero),
    Given("RegCloseKey", kKeys, 1, Success::kZero),
    Taken("CreateFileA", kHandles, Success::kNotMinusOne),
    Taken("CreateMutexA", kHandles),
    TakenBehind("CreateProcessA", kHandles, 10, 0, Success::kNotZero),
    TakenBehind("CreateProcessA", kHandles, 10, 4, Success::kNotZero),
    Given("CloseHandle", kHandles, 1, Success::kAlways),
    Taken("FindFirstFileA", kSearches, Success::kNotMinusOne),
    Given("FindClose", kSearches, 1),
    Taken("GlobalAlloc", kMemory),
    TakenBehind("PrintDlgA", kMemory, 1, 8, Success::kAlways),
    TakenBehind("PrintDlgA", kMemory, 1, 12, Success::kAlways),
    Given("GlobalFree", kMemory, 1, Success::kZero),
    Given("SetClipboardData", kMemory, 2),
    Taken("LoadLibraryA", kLibraries),
    Given("FreeLibrary", kLibraries, 1),
};

/// The handles of one kind that the program holds, with a count for each: the same registry key or library
/// can be opened several times.
struct Holdings {
  std::map<std::uint64_t, int> held;
  int count = 0;
  int most = 0;
};

class Ledger {
 public:
  void Take(const Call& call, Kind kind, std::uint64_t handle) {
    Holdings& all = kinds_[kind];
    ++all.held[handle];
    ++all.count;
    all.most = std::max(all.most, all.count);
    if (all.count > kBudgets[kind].most) {
      Report(call, Rule::kBalance, Format("more than %d %s", kBudgets[kind].most, kBudgets[kind].name));
    }
  }

  /// Returns false if the program does not hold the handle.
  bool Give(Kind kind, std::uint64_t handle) {
    Holdings& all = kinds_[kind];
    const auto found = all.held.find(handle);
    if (found == all.held.end()) return false;
    --all.count;
    if (--found->second == 0) all.held.erase(found);
    return true;
  }

  [[nodiscard]] bool Holds(Kind kind, std::uint64_t handle) const {
    return kinds_[kind].held.contains(handle);
  }
  [[nodiscard]] int Count(Kind kind) const { return kinds_[kind].count; }
  [[nodiscard]] int Most(Kind kind) const { return kinds_[kind].most; }

  /// Removes the handles that the system has freed itself.
  template <typename IsGone>
  void GiveAll(Kind kind, IsGone is_gone) {
    Holdings& all = kinds_[kind];
    for (auto one = all.held.begin(); one != all.held.end();) {
      const bool goes = is_gone(one->first);
      if (goes) all.count -= one->second;
      one = goes ? all.held.erase(one) : std::next(one);
    }
  }

 private:
  std::array<Holdings, kKindCount> kinds_;
};

Ledger& GetLedger() {
  static Ledger ledger;
  return ledger;
}

bool Succeeded(const Call& call, Success success) {
  switch (success) {
    case Success::kNotZero:
      return call.result != 0;
    case Success::kZero:
      return call.result == 0;
    case Success::kNotMinusOne:
      return call.result != 0xFFFFFFFF;
    default:
      return true;
  }
}

std::uint32_t HandleOf(const Call& call, const Movement& row) {
  switch (row.place) {
    case Place::kResult:
      return call.result;
    case Place::kArgument:
      return call.Argument(row.argument);
    default: {
      std::uint32_t word = 0;
      std::memcpy(&word, call.Argument<const char*>(row.argument) + row.offset, sizeof word);
      return word;
    }
  }
}

/// True for null and for the roots of the registry, which are always open.
bool IsUnowned(Kind kind, std::uint32_t handle) {
  return handle == 0 || (kind == kKeys && handle >= 0x80000000U);
}

void Move(const Call& call, const Movement& row) {
  const std::uint32_t handle = HandleOf(call, row);
  if (!Succeeded(call, row.success) || IsUnowned(row.kind, handle)) return;
  if (row.is_taken) {
    GetLedger().Take(call, row.kind, handle);
  } else if (!GetLedger().Give(row.kind, handle)) {
    Report(call, Rule::kBalance,
           Format("gives back one of its %s that it does not hold", kBudgets[row.kind].name));
  }
}

/// All programs share five common device contexts, so a program must not hold one while it waits.
void CheckWaiting(const Call& call) {
  const int count = GetLedger().Count(kCommonDevices);
  if (count > 0) Report(call, Rule::kBalance, Format("waits with %d common device contexts", count));
}

std::uint64_t TimerOf(const Call& call) { return std::uint64_t{call.Argument(1)} << 32U | call.Argument(2); }

void WindowsGone(const Call& /*call*/) {
  const auto is_gone = [](std::uint64_t handle) { return IsWindow(reinterpret_cast<HWND>(handle)) == 0; };
  GetLedger().GiveAll(kWindows, is_gone);
  GetLedger().GiveAll(kTimers, [&is_gone](std::uint64_t timer) { return is_gone(timer >> 32U); });
}

void MenuGone(const Call& call) {
  if (call.result == 0) return;
  // DestroyMenu also destroys the submenus.
  GetLedger().GiveAll(kMenus, [](std::uint64_t menu) { return IsMenu(reinterpret_cast<HMENU>(menu)) == 0; });
}

void CheckKey(const Call& call) {
  const std::uint32_t key = call.Argument(1);
  if (IsUnowned(kKeys, key) || GetLedger().Holds(kKeys, key)) return;
  Report(call, Rule::kRegistry, "uses a key that it does not hold");
}

void Close(const Call& call) {
  WindowsGone(call);
  for (int kind = 0; kind < kKindCount; ++kind) {
    ReportHeld(kBudgets[kind].name, GetLedger().Most(static_cast<Kind>(kind)));
    const int left = GetLedger().Count(static_cast<Kind>(kind));
    if (left > 0) Report(call, Rule::kBalance, Format("%d %s left", left, kBudgets[kind].name));
  }
}

}  // namespace

void AddResourceRules(Watches& watches) {
  for (const Movement& row : kMovements) {
    watches.After(row.function, [&row](Call& call) { Move(call, row); });
  }
  // A shared image belongs to the system, and the program must not free it.
  watches.After("LoadImageA", [](Call& call) {
    if (call.result == 0 || (call.Argument(6) & LR_SHARED) != 0) return;
    GetLedger().Take(call, call.Argument(3) == IMAGE_BITMAP ? kObjects : kIcons, call.result);
  });
  // The device context is the first word of PAINTSTRUCT.
  watches.After("EndPaint", [](Call& call) {
    GetLedger().Give(kCommonDevices, call.Argument<const std::uint32_t*>(2)[0]);
  });
  watches.After("SetTimer", [](Call& call) {
    if (call.result != 0 && !GetLedger().Holds(kTimers, TimerOf(call)))
      GetLedger().Take(call, kTimers, TimerOf(call));
  });
  watches.After("KillTimer", [](Call& call) { GetLedger().Give(kTimers, TimerOf(call)); });
  watches.After("DestroyWindow", &WindowsGone);
  watches.After("DestroyMenu", &MenuGone);
  watches.Before("GetMessageA", &CheckWaiting);
  watches.Before("MsgWaitForMultipleObjects", &CheckWaiting);
  for (const char* const function : {"RegQueryValueExA", "RegSetValueExA", "RegFlushKey", "RegDeleteValueA",
                                     "RegCloseKey", "RegOpenKeyA", "RegOpenKeyExA", "RegCreateKeyA",
                                     "RegCreateKeyExA", "RegEnumKeyA", "RegQueryInfoKeyA", "RegDeleteKeyA"}) {
    watches.Before(function, &CheckKey);
  }
  watches.Before("ExitProcess", &Close);
}

}  // namespace qdix::strict95
