// Stores the per-user settings, one text per setting. Uses the registry path of earlier installations, so
// their settings carry over. Caches nothing: every read and write goes to the registry.
#pragma once

#include <optional>
#include <string>

#include "os/registry.h"
#include "registry/settings.h"

namespace qdix::registry {

class SettingsStore {
 public:
  explicit SettingsStore(os::Registry& registry) : registry_(registry) {}

  /// Returns the stored text, or nullopt if there is none. A value that exists but is empty gives an empty
  /// text.
  [[nodiscard]] std::optional<std::string> Stored(const Setting& setting) const;

  [[nodiscard]] std::string Get(const TextSetting& setting) const;
  [[nodiscard]] double Get(const NumberSetting& setting) const;
  [[nodiscard]] bool Get(const SwitchSetting& setting) const;

  /// Returns the leading number of the stored text, or `missing` if there is none.
  [[nodiscard]] double NumberOr(const Setting& setting, double missing) const;

  /// Saves a text. If the system refuses, the old value stays and no error is reported.
  void Save(const Setting& setting, const std::string& text);
  /// Saves the shortest text of a number.
  void Save(const Setting& setting, double number);

 private:
  os::Registry& registry_;
};

}  // namespace qdix::registry
