// Backs up system.ini and records the previous settings before the program changes the system for the first
// time. Done once per machine.
#pragma once

#include "os/system.h"
#include "registry/module_registry.h"
#include "registry/registry_paths.h"
#include "tuning/system_ini.h"

namespace qdix::tuning {

class FirstSave {
 public:
  FirstSave(const os::System& system, SystemIni& system_ini)
      : system_(system), registry_(system.registry), paths_(system.registry), system_ini_(system_ini) {}

  /// Makes the backup and the record if there is none yet, and flushes the record to the disk: after a crash
  /// there must be no changed system.ini without it. Failures are ignored and not retried.
  void CheckFirstSave();

 private:
  void Record(const char* value_name, const std::string& text);
  void RecordCacheSize(const char* value_name, const char* key);
  void RecordPagingEntry(const char* value_name, const char* key);

  const os::System& system_;
  registry::ModuleRegistry registry_;
  registry::RegistryPaths paths_;
  SystemIni& system_ini_;
};

}  // namespace qdix::tuning
