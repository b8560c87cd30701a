// Registry keys as Windows 95 keeps them: a key has one handle, however often it is opened, and counts its
// openings in 16 bits. The last close invalidates the handle for everybody who still has it.
#include <map>
#include <string>
#include <utility>

#include "tests/strict95/guard/ledger.h"
#include "tests/strict95/guard/lower_case.h"
#include "tests/strict95/guard/rules.h"

namespace qdix::strict95 {

namespace {

constexpr std::uint32_t kMaxOpenings = 0xFFFF;

struct Opening {
  std::string path;
  std::uint32_t count = 0;
};

/// The open keys of the program, by handle.
std::map<std::uint32_t, Opening>& OpenKeys() {
  static std::map<std::uint32_t, Opening> keys;
  return keys;
}

/// The roots are always open.
bool IsRoot(std::uint32_t key) { return key == 0 || key >= 0x80000000U; }

HKEY Handle(std::uint32_t key) { return reinterpret_cast<HKEY>(static_cast<std::uintptr_t>(key)); }

std::string PathOf(std::uint32_t key) {
  constexpr std::uint32_t kFirstRoot = 0x80000000U;
  constexpr const char* kRoots[] = {"HKCR", "HKCU", "HKLM", "HKU", "HKPD", "HKCC", "HKDD"};
  if (IsRoot(key)) return key - kFirstRoot < std::size(kRoots) ? kRoots[key - kFirstRoot] : "";
  const auto found = OpenKeys().find(key);
  return found == OpenKeys().end() ? std::string() : found->second.path;
}

/// Returns the path of the key that a call names by an open key and a path below it, in lower case.
std::string NamedPath(const Call& call) {
  const char* const below = call.Argument<const char*>(2);
  std::string path = PathOf(call.Argument(1));
  if (below != nullptr && below[0] != '\0') path += std::string("\\") + below;
  return LowerCase(path);
}

/// False if another program has deleted the key.
bool IsThere(std::uint32_t key) {
  return RegQueryInfoKeyA(Handle(key), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                          nullptr, nullptr, nullptr) == ERROR_SUCCESS;
}

/// Returns the handle of the key that is open under this path, or 0.
std::uint32_t FindOpen(const std::string& path) {
  for (const auto& [key, opening] : OpenKeys()) {
    if (opening.path == path && IsThere(key)) return key;
  }
  return 0;
}

/// The argument with the place for the handle of the key that a call opens, and the one with the place for
/// whether the key is new, or 0.
struct Places {
  unsigned handle;
  unsigned disposition;
};

/// Gives the program the handle that the key already has, and counts, without asking the system.
void OpenAgain(Call& call, Places places) {
  const std::string path = NamedPath(call);
  const std::uint32_t key = FindOpen(path);
  if (key == 0) return;
  if (++OpenKeys()[key].count > kMaxOpenings) {
    Report(call, Rule::kRegistry, Format("opens %s more than %u times", path.c_str(), kMaxOpenings));
  }
  *call.Argument<std::uint32_t*>(places.handle) = key;
  if (places.disposition != 0 && call.Argument(places.disposition) != 0) {
    *call.Argument<std::uint32_t*>(places.disposition) = REG_OPENED_EXISTING_KEY;
  }
  call.Refuse(ERROR_SUCCESS);
}

void Opened(const Call& call, Places places) {
  const auto key = *call.Argument<const std::uint32_t*>(places.handle);
  if (call.result != ERROR_SUCCESS || IsRoot(key)) return;
  OpenKeys()[key] = {NamedPath(call), 1};
  GetLedger().Take(call, kKeys, key);
}

void CheckKey(const Call& call) {
  const std::uint32_t key = call.Argument(1);
  if (IsRoot(key) || OpenKeys().contains(key)) return;
  Report(call, Rule::kRegistry, "uses a key that it does not hold");
}

/// Only the last close reaches the system.
void Close(Call& call) {
  const auto found = OpenKeys().find(call.Argument(1));
  if (found == OpenKeys().end()) return;
  if (--found->second.count > 0) {
    call.Refuse(ERROR_SUCCESS);
    return;
  }
  GetLedger().Give(kKeys, found->first);
  OpenKeys().erase(found);
}

/// Windows 95 has no access rights: a handle that is opened for reading also writes.
void GrantEverything(Call& call, unsigned argument) { call.arguments[argument - 1] = MAXIMUM_ALLOWED; }

void ReportLeft(const Call& call) {
  for (const auto& [key, opening] : OpenKeys()) {
    Report(call, Rule::kRegistry, Format("leaves %s open", opening.path.c_str()));
  }
}

}  // namespace

void AddRegistryRules(Watches& watches) {
  for (const char* const function : {"RegQueryValueExA", "RegSetValueExA", "RegFlushKey", "RegDeleteValueA",
                                     "RegCloseKey", "RegOpenKeyA", "RegOpenKeyExA", "RegCreateKeyA",
                                     "RegCreateKeyExA", "RegEnumKeyA", "RegQueryInfoKeyA", "RegDeleteKeyA"}) {
    watches.Before(function, &CheckKey);
  }
  watches.Before("RegOpenKeyExA", [](Call& call) { GrantEverything(call, 4); });
  watches.Before("RegCreateKeyExA", [](Call& call) { GrantEverything(call, 6); });
  constexpr std::pair<const char*, Places> kOpening[] = {{"RegOpenKeyA", {3, 0}},
                                                         {"RegOpenKeyExA", {5, 0}},
                                                         {"RegCreateKeyA", {3, 0}},
                                                         {"RegCreateKeyExA", {8, 9}}};
  for (const auto& [function, places] : kOpening) {
    watches.Before(function, [places = places](Call& call) { OpenAgain(call, places); });
    watches.After(function, [places = places](Call& call) { Opened(call, places); });
  }
  watches.Before("RegCloseKey", &Close);
  watches.Before("ExitProcess", &ReportLeft);
}

}  // namespace qdix::strict95
