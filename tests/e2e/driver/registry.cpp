#include "tests/e2e/driver/registry.h"

#include <algorithm>
#include <array>

namespace qdix::e2e {

namespace {

/// The program's own keys; of the key of programs that start with Windows one value is its own.
std::array<KeyPath, 4> OwnKeys() { return {kSettings, kStartup, kMachineKey, kUserKey}; }

/// Longest name or content of a value that the program writes, with room to spare.
constexpr std::size_t kLongestText = 4096;

}  // namespace

ProgramRegistry::Key ProgramRegistry::Read(const KeyPath& path) {
  Key key;
  HKEY handle = nullptr;
  if (RegOpenKeyExA(path.root, path.path, 0, KEY_QUERY_VALUE, &handle) != ERROR_SUCCESS) return key;
  key.exists = true;
  for (DWORD index = 0;; ++index) {
    std::array<char, kLongestText> name{};
    std::array<char, kLongestText> bytes{};
    DWORD name_length = name.size();
    DWORD size = bytes.size();
    DWORD type = 0;
    if (RegEnumValueA(handle, index, name.data(), &name_length, nullptr, &type,
                      reinterpret_cast<BYTE*>(bytes.data()), &size) != ERROR_SUCCESS) {
      break;
    }
    key.values.push_back({name.data(), type, std::string(bytes.data(), size)});
  }
  RegCloseKey(handle);
  std::sort(key.values.begin(), key.values.end(),
            [](const Value& left, const Value& right) { return left.name < right.name; });
  return key;
}

ProgramRegistry::ProgramRegistry() : run_value_(RegistryText(kRunKey, kRunValue)) {
  for (const KeyPath& path : OwnKeys()) keys_.push_back(Read(path));
}

void ProgramRegistry::Clear() {
  for (const KeyPath& path : OwnKeys()) RegDeleteKeyA(path.root, path.path);
  HKEY run = nullptr;
  if (RegOpenKeyExA(kRunKey.root, kRunKey.path, 0, KEY_SET_VALUE, &run) != ERROR_SUCCESS) return;
  RegDeleteValueA(run, kRunValue);
  RegCloseKey(run);
}

void ProgramRegistry::PutBack() const {
  Clear();
  const auto paths = OwnKeys();
  for (std::size_t index = 0; index < paths.size(); ++index) {
    if (!keys_[index].exists) continue;
    HKEY handle = nullptr;
    RegCreateKeyExA(paths[index].root, paths[index].path, 0, nullptr, 0, KEY_SET_VALUE, nullptr, &handle,
                    nullptr);
    for (const Value& value : keys_[index].values) {
      RegSetValueExA(handle, value.name.c_str(), 0, value.type,
                     reinterpret_cast<const BYTE*>(value.bytes.data()),
                     static_cast<DWORD>(value.bytes.size()));
    }
    RegCloseKey(handle);
  }
  if (run_value_.has_value()) SetRegistryText(kRunKey, kRunValue, *run_value_);
}

std::optional<std::string> RegistryText(const KeyPath& key, const std::string& name) {
  HKEY handle = nullptr;
  if (RegOpenKeyExA(key.root, key.path, 0, KEY_QUERY_VALUE, &handle) != ERROR_SUCCESS) return std::nullopt;
  std::array<char, kLongestText> text{};
  DWORD size = text.size() - 1;
  DWORD type = 0;
  const LONG result =
      RegQueryValueExA(handle, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size);
  RegCloseKey(handle);
  if (result != ERROR_SUCCESS || type != REG_SZ) return std::nullopt;
  return text.data();
}

RegistryTexts TextsOf(const KeyPath& key) {
  RegistryTexts texts;
  HKEY handle = nullptr;
  if (RegOpenKeyExA(key.root, key.path, 0, KEY_QUERY_VALUE, &handle) != ERROR_SUCCESS) return texts;
  for (DWORD index = 0;; ++index) {
    std::array<char, kLongestText> name{};
    DWORD length = name.size();
    if (RegEnumValueA(handle, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      break;
    }
    texts[name.data()] = RegistryText(key, name.data()).value_or("(no text)");
  }
  RegCloseKey(handle);
  return texts;
}

void SetRegistryText(const KeyPath& key, const std::string& name, const std::string& text) {
  HKEY handle = nullptr;
  RegCreateKeyExA(key.root, key.path, 0, nullptr, 0, KEY_SET_VALUE, nullptr, &handle, nullptr);
  RegSetValueExA(handle, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                 static_cast<DWORD>(text.size() + 1));
  RegCloseKey(handle);
}

}  // namespace qdix::e2e
