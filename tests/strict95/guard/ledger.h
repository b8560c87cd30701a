// What the program holds at a time: handles by kind, each with a count, and the budget of each kind.
#pragma once

#include <array>
#include <cstdint>
#include <map>

#include "tests/strict95/guard/call.h"

namespace qdix::strict95 {

enum Kind {
  kCommonDevices,
  kDevices,
  kObjects,
  kMenus,
  kIcons,
  kTrayIcons,
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
inline constexpr std::array<Budget, kKindCount> kBudgets = {{
    {"common device contexts", 4},
    {"memory and printer device contexts", 24},
    {"GDI objects", 48},
    {"menus", 16},
    {"icons", 4},
    {"tray icons", 1},
    {"timers", 12},
    {"windows", 224},
    {"registry keys", 32},
    {"files and other handles", 16},
    {"file searches", 4},
    {"global memory blocks", 8},
    {"libraries", 4},
}};

/// The handles of one kind that the program holds, with a count for each: the same registry key or library
/// can be opened several times.
struct Holdings {
  std::map<std::uint64_t, int> held;
  int count = 0;
  int most = 0;
};

class Ledger {
 public:
  /// Reports a kind that exceeds its budget.
  void Take(const Call& call, Kind kind, std::uint64_t handle);

  /// Returns false if the program does not hold the handle.
  bool Give(Kind kind, std::uint64_t handle);

  [[nodiscard]] bool Holds(Kind kind, std::uint64_t handle) const {
    return kinds_[kind].held.contains(handle);
  }
  /// Returns how often the program holds the handle.
  [[nodiscard]] int CountOf(Kind kind, std::uint64_t handle) const {
    const auto found = kinds_[kind].held.find(handle);
    return found == kinds_[kind].held.end() ? 0 : found->second;
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

[[nodiscard]] Ledger& GetLedger();

}  // namespace qdix::strict95
