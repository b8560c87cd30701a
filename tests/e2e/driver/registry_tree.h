// Saves and restores a registry key with everything below it.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>
#include <vector>

namespace qdix::e2e {

struct KeyPath {
  HKEY root;
  const char* path;
};

class RegistryTree {
 public:
  /// Saves the key as it is now, or the fact that it does not exist.
  explicit RegistryTree(const KeyPath& path);

  /// Restores the key and everything below it.
  void PutBack() const;

  bool operator==(const RegistryTree& other) const { return root_ == other.root_; }

 private:
  struct Value {
    std::string name;
    DWORD type;
    std::string bytes;
    bool operator==(const Value&) const = default;
  };
  struct Key {
    std::string name;
    bool exists = false;
    std::vector<Value> values;
    std::vector<Key> keys;
    bool operator==(const Key&) const = default;
  };

  static Key Read(HKEY parent, const std::string& name);
  static void ReadValues(HKEY handle, Key& key);
  static void Write(HKEY parent, const Key& key);

  KeyPath path_;
  Key root_;
};

/// Deletes a key and everything below it.
void DeleteTree(const KeyPath& path);

}  // namespace qdix::e2e
