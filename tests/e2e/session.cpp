#include "tests/e2e/session.h"

#include <array>

namespace qdix::e2e {

std::optional<std::string> RegistryText(HKEY root, const std::string& path, const std::string& name) {
  HKEY key = nullptr;
  if (RegOpenKeyExA(root, path.c_str(), 0, KEY_QUERY_VALUE, &key) != ERROR_SUCCESS) return std::nullopt;
  std::array<char, 1024> text{};
  DWORD size = static_cast<DWORD>(text.size() - 1);
  DWORD type = 0;
  const LONG result =
      RegQueryValueExA(key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size);
  RegCloseKey(key);
  if (result != ERROR_SUCCESS || type != REG_SZ) return std::nullopt;
  return text.data();
}

void SetRegistryText(HKEY root, const std::string& path, const std::string& name, const std::string& text) {
  HKEY key = nullptr;
  RegCreateKeyExA(root, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
  RegSetValueExA(key, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                 static_cast<DWORD>(text.size() + 1));
  RegCloseKey(key);
}

std::map<std::string, std::string> RegistryTexts(HKEY root, const std::string& path) {
  std::map<std::string, std::string> texts;
  HKEY key = nullptr;
  if (RegOpenKeyExA(root, path.c_str(), 0, KEY_QUERY_VALUE, &key) != ERROR_SUCCESS) return texts;
  for (DWORD index = 0;; ++index) {
    std::array<char, 256> name{};
    DWORD length = static_cast<DWORD>(name.size());
    if (RegEnumValueA(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
      break;
    texts[name.data()] = RegistryText(root, path, name.data()).value_or("(no text)");
  }
  RegCloseKey(key);
  return texts;
}

void Session::TakeSettingsAway() {
  RegDeleteKeyA(HKEY_CURRENT_USER, kSettings);
  RegDeleteKeyA(HKEY_CURRENT_USER, kStartup);
  RegDeleteKeyA(HKEY_LOCAL_MACHINE, kMachineKey);
  HKEY run = nullptr;
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, kRunKey, 0, KEY_SET_VALUE, &run) == ERROR_SUCCESS) {
    RegDeleteValueA(run, "Quondix");
    RegCloseKey(run);
  }
}

}  // namespace qdix::e2e
