#include "self_test/private_registry.h"

namespace qdix::self_test {

namespace {

constexpr bool IsRoot(os::KeyHandle key) { return key >= os::kHkeyClassesRoot && key <= os::kHkeyDynData; }

}  // namespace

/// Keys that were opened through this object are already inside.
PrivateRegistry::Place PrivateRegistry::Inside(os::KeyHandle parent, const char* subkey) const {
  std::string below = subkey == nullptr ? "" : subkey;
  if (!IsRoot(parent)) return {parent, below};
  const char root_digit = static_cast<char>('0' + (parent & 0xFU));
  std::string path = path_ + "\\Root" + root_digit;
  if (!below.empty()) path += "\\" + below;
  return {os::kHkeyCurrentUser, path};
}

std::int32_t PrivateRegistry::RegOpenKeyExA(os::KeyHandle parent, const char* subkey, std::uint32_t access,
                                            os::KeyHandle& opened) {
  if (parent == os::kHkeyDynData) {
    if (access != os::kKeyQueryValue) return os::kErrorAccessDenied;
    return real_.RegOpenKeyExA(parent, subkey, access, opened);
  }
  const Place place = Inside(parent, subkey);
  return real_.RegOpenKeyExA(place.parent, place.subkey.c_str(), access, opened);
}

std::int32_t PrivateRegistry::RegCreateKeyExA(os::KeyHandle parent, const char* subkey, std::uint32_t access,
                                              os::KeyHandle& opened) {
  const Place place = Inside(parent, subkey);
  return real_.RegCreateKeyExA(place.parent, place.subkey.c_str(), access, opened);
}

std::int32_t PrivateRegistry::RegOpenKeyA(os::KeyHandle parent, const char* subkey, os::KeyHandle& opened) {
  const Place place = Inside(parent, subkey);
  return real_.RegOpenKeyA(place.parent, place.subkey.c_str(), opened);
}

std::int32_t PrivateRegistry::RegCreateKeyA(os::KeyHandle parent, const char* subkey, os::KeyHandle& opened) {
  const Place place = Inside(parent, subkey);
  return real_.RegCreateKeyA(place.parent, place.subkey.c_str(), opened);
}

std::int32_t PrivateRegistry::RegQueryValueExA(os::KeyHandle key, const char* value_name, std::uint32_t& type,
                                               std::uint8_t* data, std::uint32_t& size_bytes) {
  if (IsRoot(key)) return os::kErrorFileNotFound;
  return real_.RegQueryValueExA(key, value_name, type, data, size_bytes);
}

std::int32_t PrivateRegistry::RegSetValueExA(os::KeyHandle key, const char* value_name, std::uint32_t type,
                                             const std::uint8_t* data, std::uint32_t size_bytes) {
  if (IsRoot(key)) return os::kErrorAccessDenied;
  return real_.RegSetValueExA(key, value_name, type, data, size_bytes);
}

std::int32_t PrivateRegistry::RegDeleteValueA(os::KeyHandle key, const char* value_name) {
  if (IsRoot(key)) return os::kErrorAccessDenied;
  return real_.RegDeleteValueA(key, value_name);
}

std::int32_t PrivateRegistry::RegFlushKey(os::KeyHandle key) {
  return IsRoot(key) ? os::kErrorSuccess : real_.RegFlushKey(key);
}

/// Windows reports success for closing a root.
std::int32_t PrivateRegistry::RegCloseKey(os::KeyHandle key) {
  return IsRoot(key) ? os::kErrorSuccess : real_.RegCloseKey(key);
}

}  // namespace qdix::self_test
