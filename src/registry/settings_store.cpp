#include "registry/settings_store.h"

#include "base/numbers.h"
#include "registry/registry_key.h"

namespace qdix::registry {

namespace {

std::string SectionPath(std::string_view section) {
  std::string path = "Software\\VB and VBA Program Settings\\QDIX\\";
  path += section;
  return path;
}

std::optional<std::string> Stored(os::Registry& registry, std::string_view section, const char* key) {
  const auto opened =
      RegistryKey::Open(registry, os::kHkeyCurrentUser, SectionPath(section), os::kKeyQueryValue);
  return opened.ReadText(key);
}

}  // namespace

std::string SettingsStore::GetSetting(std::string_view section, const char* key,
                                      std::string_view missing) const {
  return Stored(registry_, section, key).value_or(std::string(missing));
}

double SettingsStore::GetNumber(std::string_view section, const char* key, double missing) const {
  const auto text = Stored(registry_, section, key);
  return text ? base::ParseLeadingNumber(*text) : missing;
}

bool SettingsStore::GetBoolean(std::string_view section, const char* key, bool missing) const {
  const auto text = Stored(registry_, section, key);
  return text ? base::ParseBoolean(*text) : missing;
}

bool SettingsStore::HasSetting(std::string_view section, const char* key) const {
  return Stored(registry_, section, key).has_value();
}

void SettingsStore::SaveSetting(std::string_view section, const char* key, const std::string& text) {
  auto opened = RegistryKey::Create(registry_, os::kHkeyCurrentUser, SectionPath(section), os::kKeySetValue);
  opened.WriteText(key, text);
}

void SettingsStore::SaveNumber(std::string_view section, const char* key, double number) {
  SaveSetting(section, key, base::ShortestText(number));
}

}  // namespace qdix::registry
