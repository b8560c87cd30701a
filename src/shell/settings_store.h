// The per-user settings: one text a key, in the sections "Settings" and "Startup". Stands where an earlier
// installation kept its own, so settings carry over. Keeps nothing in memory: every read and write goes to
// the registry.
#pragma once

#include <string>
#include <string_view>

#include "os/registry.h"

namespace qdix::shell {

inline constexpr std::string_view kSettingsSection = "Settings";
inline constexpr std::string_view kStartupSection = "Startup";

class SettingsStore {
 public:
  explicit SettingsStore(os::Registry& registry) : registry_(registry) {}

  /// The stored text, or `missing` when there is none. A value that is there but empty gives the empty text.
  [[nodiscard]] std::string GetSetting(std::string_view section, const char* key,
                                       std::string_view missing) const;

  /// The leading number of the stored text, or `missing` when there is none.
  [[nodiscard]] double GetNumber(std::string_view section, const char* key, double missing) const;

  /// The stored text read as true or false, or `missing` when there is none.
  [[nodiscard]] bool GetBoolean(std::string_view section, const char* key, bool missing) const;

  [[nodiscard]] bool HasSetting(std::string_view section, const char* key) const;

  /// A refusal of the system is passed over: the old value stays.
  void SaveSetting(std::string_view section, const char* key, const std::string& text);
  /// Saves the shortest text of the number.
  void SaveNumber(std::string_view section, const char* key, double number);

 private:
  os::Registry& registry_;
};

}  // namespace qdix::shell
