// Resource balance: a program frees what it allocates exactly once, and never holds more at a time than the
// small heaps of Windows 95 can spare. Windows 95 has no call that counts a program's objects.
#include <cstring>

#include "tests/strict95/guard/ledger.h"
#include "tests/strict95/guard/rules.h"

// clang-format off
#include <shellapi.h>
// clang-format on

namespace qdix::strict95 {

namespace {

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
    Taken("CreateFileA", kHandles, Success::kNotMinusOne),
    Taken("CreateMutexA", kHandles),
    Taken("CreateThread", kHandles),
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

void Move(const Call& call, const Movement& row) {
  const std::uint32_t handle = HandleOf(call, row);
  if (!Succeeded(call, row.success) || handle == 0) return;
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

/// The taskbar keeps the icon of a program that has ended until the pointer touches it.
void CountTrayIcon(const Call& call) {
  if (call.result == 0) return;
  NOTIFYICONDATAA record{};
  std::memcpy(&record, call.Argument<const void*>(2), offsetof(NOTIFYICONDATAA, uFlags));
  const std::uint64_t icon = std::uint64_t{reinterpret_cast<std::uintptr_t>(record.hWnd)} << 32U | record.uID;
  if (call.Argument(1) == NIM_DELETE) GetLedger().Give(kTrayIcons, icon);
  // A restarted taskbar takes the same icon again.
  if (call.Argument(1) == NIM_ADD && !GetLedger().Holds(kTrayIcons, icon))
    GetLedger().Take(call, kTrayIcons, icon);
}

void MenuGone(const Call& call) {
  if (call.result == 0) return;
  // DestroyMenu also destroys the submenus.
  GetLedger().GiveAll(kMenus, [](std::uint64_t menu) { return IsMenu(reinterpret_cast<HMENU>(menu)) == 0; });
}

/// Leaves keys to their own rule.
void Close(const Call& call) {
  WindowsGone(call);
  for (int kind = 0; kind < kKindCount; ++kind) {
    ReportHeld(kBudgets[kind].name, GetLedger().Most(static_cast<Kind>(kind)));
    const int left = GetLedger().Count(static_cast<Kind>(kind));
    if (left > 0 && kind != kKeys)
      Report(call, Rule::kBalance, Format("%d %s left", left, kBudgets[kind].name));
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
  watches.After("Shell_NotifyIconA", &CountTrayIcon);
  watches.Before("GetMessageA", &CheckWaiting);
  watches.Before("MsgWaitForMultipleObjects", &CheckWaiting);
  watches.Before("ExitProcess", &Close);
}

}  // namespace qdix::strict95
