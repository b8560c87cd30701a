// Stores the per-user settings, one text per key, in the sections "Settings" and "Startup". Uses the registry
// path of earlier installations, so their settings carry over. Caches nothing: every read and write goes to
// the registry.
#pragma once

#include <string>
#include <string_view>

#include "os/registry.h"

namespace qdix::registry {

inline constexpr std::string_view kSettingsSection = "Settings";
inline constexpr std::string_view kStartupSection = "Startup";

class SettingsStore {
 public:
  explicit SettingsStore(os::Registry& registry) : registry_(registry) {}

  /// Returns the stored text, or `missing` if there is none. A value that exists but is empty gives an empty
  /// text.
  [[nodiscard]] std::string GetSetting(std::string_view section, const char* key,
                                       std::string_view missing) const;

  /// Returns the leading number of the stored text, or `missing` if there is none.
  [[nodiscard]] double GetNumber(std::string_view section, const char* key, double missing) const;

  /// Returns the stored text as a Boolean, or `missing` if there is none.
  [[nodiscard]] bool GetBoolean(std::string_view section, const char* key, bool missing) const;

  [[nodiscard]] bool HasSetting(std::string_view section, const char* key) const;

  /// Saves a text. If the system refuses, the old value stays and no error is reported.
  void SaveSetting(std::string_view section, const char* key, const std::string& text);
  /// Saves the shortest text of a number.
  void SaveNumber(std::string_view section, const char* key, double number);

 private:
  os::Registry& registry_;
};

}  // namespace qdix::registry
