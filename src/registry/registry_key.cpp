#include "registry/registry_key.h"

#include "base/text.h"

namespace qdix::registry {

namespace {

/// Longest text that is read. Nothing that the program stores comes near it. A longer value comes from
/// another program and counts as missing.
constexpr std::uint32_t kMaxTextBytes = 65536;

}  // namespace

std::optional<std::string> ReadTextOfSize(os::Registry& registry, os::KeyHandle key, const char* value_name,
                                          std::uint32_t size_bytes) {
  if (size_bytes > kMaxTextBytes) return std::nullopt;
  std::string text(size_bytes, '\0');
  std::uint32_t type = 0;
  auto* const bytes = reinterpret_cast<std::uint8_t*>(text.data());
  if (registry.RegQueryValueExA(key, value_name, type, bytes, size_bytes) != os::kErrorSuccess ||
      type != os::kRegSz) {
    return std::nullopt;
  }
  if (size_bytes < text.size()) text.resize(size_bytes);
  return std::string(base::CutAtNul(text));
}

RegistryKey RegistryKey::Open(os::Registry& registry, os::KeyHandle root, const std::string& path,
                              std::uint32_t access) {
  RegistryKey key(registry);
  key.open_ = registry.RegOpenKeyExA(root, path.c_str(), access, key.handle_) == os::kErrorSuccess;
  return key;
}

RegistryKey RegistryKey::Create(os::Registry& registry, os::KeyHandle root, const std::string& path,
                                std::uint32_t access) {
  RegistryKey key(registry);
  key.open_ = registry.RegCreateKeyExA(root, path.c_str(), access, key.handle_) == os::kErrorSuccess;
  return key;
}

RegistryKey::RegistryKey(RegistryKey&& other) noexcept
    : registry_(other.registry_), handle_(other.handle_), open_(other.open_) {
  other.open_ = false;
}

RegistryKey::~RegistryKey() {
  if (open_) registry_.RegCloseKey(handle_);
}

std::optional<std::string> RegistryKey::ReadText(const char* value_name) const {
  if (!open_) return std::nullopt;
  std::uint32_t type = 0;
  std::uint32_t size_bytes = 0;
  if (registry_.RegQueryValueExA(handle_, value_name, type, nullptr, size_bytes) != os::kErrorSuccess) {
    return std::nullopt;
  }
  if (type != os::kRegSz) return std::nullopt;
  return ReadTextOfSize(registry_, handle_, value_name, size_bytes);
}

bool RegistryKey::HasValue(const char* value_name) const {
  if (!open_) return false;
  std::uint32_t type = 0;
  std::uint32_t size_bytes = 0;
  return registry_.RegQueryValueExA(handle_, value_name, type, nullptr, size_bytes) == os::kErrorSuccess;
}

bool RegistryKey::WriteText(const char* value_name, const std::string& text) {
  if (!open_) return false;
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.c_str());
  const auto size_bytes = static_cast<std::uint32_t>(text.size() + 1);
  return registry_.RegSetValueExA(handle_, value_name, os::kRegSz, bytes, size_bytes) == os::kErrorSuccess;
}

bool RegistryKey::Flush() { return open_ && registry_.RegFlushKey(handle_) == os::kErrorSuccess; }

bool RegistryKey::DeleteValue(const char* value_name) {
  return open_ && registry_.RegDeleteValueA(handle_, value_name) == os::kErrorSuccess;
}

}  // namespace qdix::registry
