#include "tests/e2e/driver/registry.h"

#include <array>

namespace qdix::e2e {

namespace {

/// The program's own keys. In the key of the programs that start with Windows, only one value is its own.
std::array<KeyPath, 5> OwnKeys() { return {kSettings, kStartup, kHelpSettings, kMachineKey, kUserKey}; }

/// Longest name or data of a value that the program writes, with room to spare.
constexpr std::size_t kMaxTextLength = 4096;

}  // namespace

ProgramRegistry::ProgramRegistry() : run_value_(RegistryText(kRunKey, kRunValue)) {
  for (const KeyPath& path : OwnKeys()) keys_.emplace_back(path);
}

void ProgramRegistry::Clear() {
  for (const KeyPath& path : OwnKeys()) DeleteTree(path);
  HKEY run = nullptr;
  if (RegOpenKeyExA(kRunKey.root, kRunKey.path, 0, KEY_SET_VALUE, &run) != ERROR_SUCCESS) return;
  RegDeleteValueA(run, kRunValue);
  RegCloseKey(run);
}

void ProgramRegistry::PutBack() const {
  Clear();
  for (const RegistryTree& key : keys_) key.PutBack();
  if (run_value_.has_value()) SetRegistryText(kRunKey, kRunValue, *run_value_);
}

std::optional<std::string> RegistryText(const KeyPath& key, const std::string& name) {
  HKEY handle = nullptr;
  if (RegOpenKeyExA(key.root, key.path, 0, KEY_QUERY_VALUE, &handle) != ERROR_SUCCESS) return std::nullopt;
  std::array<char, kMaxTextLength> text{};
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
    std::array<char, kMaxTextLength> name{};
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

std::optional<std::string> RegistryBytes(const KeyPath& key, const std::string& name) {
  HKEY handle = nullptr;
  if (RegOpenKeyExA(key.root, key.path, 0, KEY_QUERY_VALUE, &handle) != ERROR_SUCCESS) return std::nullopt;
  std::array<BYTE, kMaxTextLength> bytes{};
  DWORD size = bytes.size();
  DWORD type = 0;
  const LONG result = RegQueryValueExA(handle, name.c_str(), nullptr, &type, bytes.data(), &size);
  RegCloseKey(handle);
  if (result != ERROR_SUCCESS) return std::nullopt;
  constexpr const char* kDigits = "0123456789ABCDEF";
  std::string text = std::to_string(type) + ":";
  for (DWORD index = 0; index < size; ++index) {
    text += {' ', kDigits[bytes[index] >> 4U], kDigits[bytes[index] & 0xFU]};
  }
  return text;
}

void SetRegistryBytes(const KeyPath& key, const std::string& name, const std::string& bytes) {
  HKEY handle = nullptr;
  RegCreateKeyExA(key.root, key.path, 0, nullptr, 0, KEY_SET_VALUE, nullptr, &handle, nullptr);
  RegSetValueExA(handle, name.c_str(), 0, REG_BINARY, reinterpret_cast<const BYTE*>(bytes.data()),
                 static_cast<DWORD>(bytes.size()));
  RegCloseKey(handle);
}

}  // namespace qdix::e2e
