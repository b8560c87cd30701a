// The registry of the simulated machine: a tree of keys with typed values. Names ignore case but keep their
// spelling.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "os/registry.h"
#include "os/simulated/call_log.h"

namespace qdix::os::simulated {

struct RegistryValue {
  std::uint32_t type = kRegSz;
  std::string bytes;
};

class SimulatedRegistry final : public Registry {
 public:
  explicit SimulatedRegistry(CallLog& log) : log_(log) {}

  std::int32_t RegOpenKeyExA(KeyHandle parent, const char* subkey, std::uint32_t access,
                             KeyHandle& opened) override;
  std::int32_t RegCreateKeyExA(KeyHandle parent, const char* subkey, std::uint32_t access,
                               KeyHandle& opened) override;
  std::int32_t RegOpenKeyA(KeyHandle parent, const char* subkey, KeyHandle& opened) override;
  std::int32_t RegCreateKeyA(KeyHandle parent, const char* subkey, KeyHandle& opened) override;
  std::int32_t RegQueryValueExA(KeyHandle key, const char* value_name, std::uint32_t& type,
                                std::uint8_t* data, std::uint32_t& size_bytes) override;
  std::int32_t RegSetValueExA(KeyHandle key, const char* value_name, std::uint32_t type,
                              const std::uint8_t* data, std::uint32_t size_bytes) override;
  std::int32_t RegDeleteValueA(KeyHandle key, const char* value_name) override;
  std::int32_t RegFlushKey(KeyHandle key) override;
  std::int32_t RegCloseKey(KeyHandle key) override;

  // The test's view of the tree; none of these calls is recorded.
  void CreateKey(KeyHandle root, const std::string& path);
  void SetValue(KeyHandle root, const std::string& path, const std::string& name, const RegistryValue& value);
  [[nodiscard]] bool KeyExists(KeyHandle root, const std::string& path) const;
  [[nodiscard]] std::optional<RegistryValue> Value(KeyHandle root, const std::string& path,
                                                   const std::string& name) const;
  [[nodiscard]] std::map<std::string, RegistryValue> Values(KeyHandle root, const std::string& path) const;
  /// Makes this key read-only. The keys below it can still be changed.
  void DenyWrites(KeyHandle root, const std::string& path);

  [[nodiscard]] int OpenKeyCount() const { return static_cast<int>(open_.size()); }

  /// Closes every handle of this key behind the program's back and returns how many there were.
  int CloseHandlesOf(KeyHandle root, const std::string& path);

  struct ValueAccess {
    /// The number of calls recorded before this access, including it.
    std::size_t call;
    std::string name;
  };
  [[nodiscard]] const std::vector<ValueAccess>& WrittenValues() const { return written_; }
  [[nodiscard]] const std::vector<ValueAccess>& QueriedValues() const { return queried_; }
  void ClearAccesses() {
    written_.clear();
    queried_.clear();
  }

 private:
  struct NoCase {
    bool operator()(const std::string& a, const std::string& b) const;
  };
  struct Key {
    std::map<std::string, RegistryValue, NoCase> values;
  };
  struct OpenKey {
    std::string path;
    std::uint32_t access;
  };

  [[nodiscard]] std::optional<std::string> FullPath(KeyHandle parent, const std::string& subkey) const;
  /// Returns nullopt if the handle is not open. The roots are always open.
  [[nodiscard]] std::optional<OpenKey> FindOpen(KeyHandle key) const;
  [[nodiscard]] bool RefusesWrites(const std::string& path, std::uint32_t access) const;
  /// Returns all rights, but for a read-only key only the right to read.
  [[nodiscard]] std::uint32_t MaxAccess(const std::string& path) const;
  /// Returns a value as the call log shows it.
  static std::string ShownValue(const std::optional<OpenKey>& key, const char* value_name);
  KeyHandle Open(const std::string& path, std::uint32_t access);
  void Create(const std::string& path);

  CallLog& log_;
  std::map<std::string, Key, NoCase> keys_;
  std::set<std::string, NoCase> write_protected_;
  std::map<KeyHandle, OpenKey> open_;
  KeyHandle next_handle_ = 0x100;
  std::vector<ValueAccess> written_;
  std::vector<ValueAccess> queried_;
};

}  // namespace qdix::os::simulated
