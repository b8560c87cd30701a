#include "self_test/private_system.h"

namespace qdix::self_test {

PrivateSystem::PrivateSystem(const os::System& real, const OwnPlaces& places)
    : memory_(real.memory),
      registry_(real.registry, places.key),
      processes_(places.folder + "\\QDIX.exe"),
      files_(real.files, places.folder),
      profile_files_(real.profile_files, places.folder),
      system_{.memory = memory_,
              .registry = registry_,
              .event_pump = real.event_pump,
              .windows = windows_,
              .dialogs = dialogs_,
              .clock = real.clock,
              .processes = processes_,
              .shell = shell_,
              .shell_files = shell_files_,
              .processor = real.processor,
              .files = files_,
              .profile_files = profile_files_,
              .drives = real.drives,
              .session = session_} {}

PrivateSystem::~PrivateSystem() = default;

}  // namespace qdix::self_test
