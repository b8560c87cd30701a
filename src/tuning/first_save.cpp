#include "tuning/first_save.h"

#include "base/numbers.h"
#include "registry/registry_key.h"
#include "tuning/cache/file_system_template.h"
#include "tuning/record_names.h"

namespace qdix::tuning {

using registry::kMachineKey;

void FirstSave::CheckFirstSave() {
  if (!registry_.ReadRegistryValue(os::kHkeyLocalMachine, kMachineKey, kRecordMarker).empty()) return;
  paths_.CreateRegistryKey(kMachineKey, os::kHkeyLocalMachine);
  Record(kRecordMarker, "1");
  system_ini_.BackupSystemINI();
  RecordCacheSize(kRecordedMinCache, kMinFileCacheEntry);
  RecordCacheSize(kRecordedMaxCache, kMaxFileCacheEntry);
  RecordCacheSize(kRecordedChunk, kWrittenChunkSizeEntry);
  Record(kRecordedTemplate, registry_.ReadRegistryValue(os::kHkeyLocalMachine, kTemplatesKey, kUnnamedValue));
  RecordPagingEntry(kRecordedPagingDrive, kPagingDriveEntry);
  RecordPagingEntry(kRecordedMinPagingFile, kMinPagingFileSizeEntry);
  RecordPagingEntry(kRecordedMaxPagingFile, kMaxPagingFileSizeEntry);
  registry::RegistryKey::Open(system_.registry, os::kHkeyLocalMachine, kMachineKey, os::kKeyQueryValue)
      .Flush();
}

void FirstSave::Record(const char* value_name, const std::string& text) {
  registry_.WriteRegistryText(os::kHkeyLocalMachine, kMachineKey, value_name, text);
}

void FirstSave::RecordCacheSize(const char* value_name, const char* key) {
  Record(value_name, base::ShortestText(system_ini_.ReadIniValue(kVcacheSection, key)));
}

void FirstSave::RecordPagingEntry(const char* value_name, const char* key) {
  const SystemIni::Entry entry = system_ini_.ReadIniText(k386EnhSection, key);
  if (!entry.ReadsAsMissing()) Record(value_name, entry.text);
}

}  // namespace qdix::tuning
