#include "os/win32/win32_registry.h"

#include <windows.h>

namespace qdix::os::win32 {

namespace {

static_assert(sizeof(HKEY) == sizeof(KeyHandle),
              "keys are 32 bits on every Windows that the program runs on");

HKEY ToKey(KeyHandle key) { return reinterpret_cast<HKEY>(key); }
KeyHandle FromKey(HKEY key) { return reinterpret_cast<KeyHandle>(key); }

}  // namespace

std::int32_t Win32Registry::RegOpenKeyExA(KeyHandle parent, const char* subkey, std::uint32_t access,
                                          KeyHandle& opened) {
  HKEY key = nullptr;
  const LONG result = ::RegOpenKeyExA(ToKey(parent), subkey, 0, access, &key);
  if (result == ERROR_SUCCESS) opened = FromKey(key);
  return result;
}

std::int32_t Win32Registry::RegCreateKeyExA(KeyHandle parent, const char* subkey, std::uint32_t access,
                                            KeyHandle& opened) {
  HKEY key = nullptr;
  DWORD disposition = 0;
  char no_class[] = "";
  const LONG result = ::RegCreateKeyExA(ToKey(parent), subkey, 0, no_class, REG_OPTION_NON_VOLATILE, access,
                                        nullptr, &key, &disposition);
  if (result == ERROR_SUCCESS) opened = FromKey(key);
  return result;
}

std::int32_t Win32Registry::RegOpenKeyA(KeyHandle parent, const char* subkey, KeyHandle& opened) {
  HKEY key = nullptr;
  const LONG result = ::RegOpenKeyA(ToKey(parent), subkey, &key);
  if (result == ERROR_SUCCESS) opened = FromKey(key);
  return result;
}

std::int32_t Win32Registry::RegCreateKeyA(KeyHandle parent, const char* subkey, KeyHandle& opened) {
  HKEY key = nullptr;
  const LONG result = ::RegCreateKeyA(ToKey(parent), subkey, &key);
  if (result == ERROR_SUCCESS) opened = FromKey(key);
  return result;
}

std::int32_t Win32Registry::RegQueryValueExA(KeyHandle key, const char* value_name, std::uint32_t& type,
                                             std::uint8_t* data, std::uint32_t& size_bytes) {
  DWORD found_type = 0;
  DWORD size = size_bytes;
  const LONG result = ::RegQueryValueExA(ToKey(key), value_name, nullptr, &found_type, data, &size);
  if (result == ERROR_SUCCESS) type = found_type;
  if (result == ERROR_SUCCESS || result == ERROR_MORE_DATA) size_bytes = size;
  return result;
}

std::int32_t Win32Registry::RegSetValueExA(KeyHandle key, const char* value_name, std::uint32_t type,
                                           const std::uint8_t* data, std::uint32_t size_bytes) {
  return ::RegSetValueExA(ToKey(key), value_name, 0, type, data, size_bytes);
}

std::int32_t Win32Registry::RegDeleteValueA(KeyHandle key, const char* value_name) {
  return ::RegDeleteValueA(ToKey(key), value_name);
}

std::int32_t Win32Registry::RegFlushKey(KeyHandle key) { return ::RegFlushKey(ToKey(key)); }

std::int32_t Win32Registry::RegCloseKey(KeyHandle key) { return ::RegCloseKey(ToKey(key)); }

}  // namespace qdix::os::win32
