#include "tests/e2e/driver/registry_tree.h"

#include <algorithm>
#include <array>

namespace qdix::e2e {

namespace {

/// Longest name or data of a value, with room to spare.
constexpr std::size_t kMaxTextLength = 4096;

/// Returns the names of the keys directly below an open one, in alphabetical order.
std::vector<std::string> KeysBelow(HKEY handle) {
  std::vector<std::string> names;
  std::array<char, kMaxTextLength> name{};
  for (DWORD index = 0; RegEnumKeyA(handle, index, name.data(), name.size()) == ERROR_SUCCESS; ++index) {
    names.emplace_back(name.data());
  }
  std::sort(names.begin(), names.end());
  return names;
}

void DeleteBelow(HKEY parent, const std::string& name) {
  HKEY handle = nullptr;
  if (RegOpenKeyExA(parent, name.c_str(), 0, KEY_ALL_ACCESS, &handle) != ERROR_SUCCESS) return;
  for (const std::string& below : KeysBelow(handle)) DeleteBelow(handle, below);
  RegCloseKey(handle);
  RegDeleteKeyA(parent, name.c_str());
}

}  // namespace

RegistryTree::RegistryTree(const KeyPath& path) : path_(path), root_(Read(path.root, path.path)) {}

RegistryTree::Key RegistryTree::Read(HKEY parent, const std::string& name) {
  Key key;
  key.name = name;
  HKEY handle = nullptr;
  if (RegOpenKeyExA(parent, name.c_str(), 0, KEY_READ, &handle) != ERROR_SUCCESS) return key;
  key.exists = true;
  ReadValues(handle, key);
  for (const std::string& below : KeysBelow(handle)) key.keys.push_back(Read(handle, below));
  RegCloseKey(handle);
  return key;
}

void RegistryTree::ReadValues(HKEY handle, Key& key) {
  for (DWORD index = 0;; ++index) {
    std::array<char, kMaxTextLength> name{};
    std::array<char, kMaxTextLength> bytes{};
    DWORD name_length = name.size();
    DWORD size = bytes.size();
    DWORD type = 0;
    if (RegEnumValueA(handle, index, name.data(), &name_length, nullptr, &type,
                      reinterpret_cast<BYTE*>(bytes.data()), &size) != ERROR_SUCCESS) {
      break;
    }
    key.values.push_back({name.data(), type, std::string(bytes.data(), size)});
  }
  std::sort(key.values.begin(), key.values.end(),
            [](const Value& left, const Value& right) { return left.name < right.name; });
}

void RegistryTree::Write(HKEY parent, const Key& key) {
  if (!key.exists) return;
  HKEY handle = nullptr;
  if (RegCreateKeyExA(parent, key.name.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &handle, nullptr) !=
      ERROR_SUCCESS) {
    return;
  }
  for (const Value& value : key.values) {
    RegSetValueExA(handle, value.name.c_str(), 0, value.type,
                   reinterpret_cast<const BYTE*>(value.bytes.data()), static_cast<DWORD>(value.bytes.size()));
  }
  for (const Key& below : key.keys) Write(handle, below);
  RegCloseKey(handle);
}

void RegistryTree::PutBack() const {
  DeleteTree(path_);
  Write(path_.root, root_);
}

void DeleteTree(const KeyPath& path) { DeleteBelow(path.root, path.path); }

}  // namespace qdix::e2e
