#include "registry/settings_store.h"

#include "base/numbers.h"
#include "registry/registry_key.h"

namespace qdix::registry {

namespace {

std::string SectionPath(const char* section) {
  std::string path = "Software\\VB and VBA Program Settings\\QDIX\\";
  path += section;
  return path;
}

}  // namespace

std::optional<std::string> SettingsStore::Stored(const Setting& setting) const {
  const auto opened =
      RegistryKey::Open(registry_, os::kHkeyCurrentUser, SectionPath(setting.section), os::kKeyQueryValue);
  return opened.ReadText(setting.key);
}

std::string SettingsStore::Get(const TextSetting& setting) const {
  return Stored(setting).value_or(setting.missing);
}

double SettingsStore::Get(const NumberSetting& setting) const { return NumberOr(setting, setting.missing); }

bool SettingsStore::Get(const SwitchSetting& setting) const {
  const auto text = Stored(setting);
  return text ? base::ParseBoolean(*text) : setting.missing;
}

double SettingsStore::NumberOr(const Setting& setting, double missing) const {
  const auto text = Stored(setting);
  return text ? base::ParseLeadingNumber(*text) : missing;
}

void SettingsStore::Save(const Setting& setting, const std::string& text) {
  auto opened =
      RegistryKey::Create(registry_, os::kHkeyCurrentUser, SectionPath(setting.section), os::kKeySetValue);
  opened.WriteText(setting.key, text);
}

void SettingsStore::Save(const Setting& setting, double number) { Save(setting, base::ShortestText(number)); }

}  // namespace qdix::registry
