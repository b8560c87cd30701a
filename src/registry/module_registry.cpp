#include "registry/module_registry.h"

#include <array>

#include "base/numbers.h"
#include "registry/registry_key.h"

namespace qdix::registry {

namespace {

using Word = std::array<std::uint8_t, 4>;

/// Least significant byte first.
Word BytesOf(std::uint32_t number) {
  Word bytes{};
  for (std::uint8_t& byte : bytes) {
    byte = static_cast<std::uint8_t>(number & 0xFFU);
    number >>= 8U;
  }
  return bytes;
}

}  // namespace

std::string ModuleRegistry::ReadRegistryValue(os::KeyHandle root, const std::string& subkey,
                                              const char* value_name) {
  os::KeyHandle key = 0;
  if (registry_.RegOpenKeyA(root, subkey.c_str(), key) != os::kErrorSuccess) return {};
  std::string text = QueryValueText(key, value_name);
  registry_.RegCloseKey(key);
  return text;
}

std::string ModuleRegistry::QueryValueText(os::KeyHandle key, const char* value_name) {
  std::uint32_t type = 0;
  std::uint32_t size_bytes = 0;
  if (registry_.RegQueryValueExA(key, value_name, type, nullptr, size_bytes) != os::kErrorSuccess) return {};
  if (type == os::kRegSz) return ReadTextOfSize(registry_, key, value_name, size_bytes).value_or("");
  return type == os::kRegBinary ? QueryBinary(key, value_name) : std::string();
}

std::string ModuleRegistry::QueryBinary(os::KeyHandle key, const char* value_name) {
  Word bytes{};
  std::uint32_t type = 0;
  std::uint32_t size_bytes = bytes.size();
  if (registry_.RegQueryValueExA(key, value_name, type, bytes.data(), size_bytes) != os::kErrorSuccess) {
    return {};
  }
  return base::TextOf(static_cast<std::int16_t>(bytes[0] | bytes[1] << 8U));
}

void ModuleRegistry::DeleteRegistryValue(os::KeyHandle root, const std::string& subkey,
                                         const char* value_name) {
  os::KeyHandle key = 0;
  if (registry_.RegCreateKeyA(root, subkey.c_str(), key) != os::kErrorSuccess) return;
  static_cast<void>(registry_.RegDeleteValueA(key, value_name));
  registry_.RegCloseKey(key);
}

void ModuleRegistry::WriteRegistryBinary(os::KeyHandle root, const std::string& subkey,
                                         const char* value_name, const std::string& text) {
  os::KeyHandle key = 0;
  if (registry_.RegCreateKeyA(root, subkey.c_str(), key) != os::kErrorSuccess) return;
  const base::Result<std::int16_t> number = base::ToInt16(base::ParseLeadingNumber(text));
  if (base::IsNumber(text) && number.Ok()) {
    const Word bytes = BytesOf(static_cast<std::uint16_t>(number.Value()));
    static_cast<void>(registry_.RegSetValueExA(key, value_name, os::kRegBinary, bytes.data(), bytes.size()));
  }
  registry_.RegCloseKey(key);
}

void ModuleRegistry::WriteRegistryText(os::KeyHandle root, const std::string& subkey, const char* value_name,
                                       const std::string& text) {
  os::KeyHandle key = 0;
  if (registry_.RegOpenKeyA(root, subkey.c_str(), key) != os::kErrorSuccess) return;
  SetValueEx(key, value_name, os::kRegSz, text);
  registry_.RegCloseKey(key);
}

std::int32_t ModuleRegistry::SetValueEx(os::KeyHandle key, const char* value_name, std::uint32_t type,
                                        const std::string& value) {
  if (type == os::kRegSz) {
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(value.c_str());
    return registry_.RegSetValueExA(key, value_name, type, bytes,
                                    static_cast<std::uint32_t>(value.size() + 1));
  }
  if (type == os::kRegDword) {
    const std::int32_t number = base::ToInt32(base::ParseLeadingNumber(value)).ValueOr(0);
    const Word bytes = BytesOf(static_cast<std::uint32_t>(number));
    return registry_.RegSetValueExA(key, value_name, type, bytes.data(), bytes.size());
  }
  return os::kErrorSuccess;
}

}  // namespace qdix::registry
