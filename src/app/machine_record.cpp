#include "app/machine_record.h"

#include "registry/registry_key.h"
#include "registry/registry_paths.h"

namespace qdix::app {

namespace {

using registry::kMachineKey;
using registry::RegistryKey;

constexpr const char* kUserKey = "Software\\QDIX";
constexpr const char* kMarker = "HasRun";
constexpr const char* kMarkerText = "1";

bool HasMarker(os::Registry& registry, os::KeyHandle root, const char* path) {
  return RegistryKey::Open(registry, root, path, os::kKeyQueryValue).HasValue(kMarker);
}

}  // namespace

void MachineRecord::EnsureKey() {
  const auto made_and_closed = RegistryKey::Create(registry_, os::kHkeyLocalMachine, kMachineKey);
}

bool MachineRecord::IsFirstRun() const {
  return !HasMarker(registry_, os::kHkeyLocalMachine, kMachineKey) &&
         !HasMarker(registry_, os::kHkeyCurrentUser, kUserKey);
}

void MachineRecord::MarkRun() {
  auto machine_wide = RegistryKey::Create(registry_, os::kHkeyLocalMachine, kMachineKey, os::kKeySetValue);
  if (machine_wide.WriteText(kMarker, kMarkerText)) return;
  RegistryKey::Create(registry_, os::kHkeyCurrentUser, kUserKey, os::kKeySetValue)
      .WriteText(kMarker, kMarkerText);
}

}  // namespace qdix::app
