#include "shell/startup_registration.h"

#include "shell/registry_key.h"
#include "shell/registry_paths.h"

namespace qdix::shell {

StartupRegistration::StartupRegistration(const os::System& system, screens::StartupScreen& screen)
    : system_(system), screen_(screen) {
  screen_.Check2.OnClick = ui::Handler::To<&StartupRegistration::Check2_Click>(*this);
}

void StartupRegistration::CheckStartup() {
  const auto run = RegistryKey::Open(system_.registry, os::kHkeyLocalMachine, kRunKey, os::kKeyQueryValue);
  screen_.Check2.SetTicked(run.HasValue(kRunValue));
}

base::Status StartupRegistration::Check2_Click() {
  auto run = RegistryKey::Open(system_.registry, os::kHkeyLocalMachine, kRunKey,
                               os::kKeyQueryValue | os::kKeySetValue);
  if (screen_.Check2.Ticked()) {
    run.WriteText(kRunValue, system_.processes.ModuleFileName());
  } else {
    run.DeleteValue(kRunValue);
  }
  return base::kDone;
}

}  // namespace qdix::shell
