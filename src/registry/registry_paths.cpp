#include "registry/registry_paths.h"

#include <array>
#include <span>
#include <vector>

#include "base/text.h"
#include "registry/registry_key.h"

namespace qdix::registry {

namespace {

/// Deepest path that can be opened, in keys below the root.
constexpr std::size_t kMaxLevels = 32;

struct Root {
  std::string_view name;
  os::KeyHandle handle;
};
constexpr std::array<Root, 6> kRoots{{
    {"HKEY_CLASSES_ROOT", os::kHkeyClassesRoot},
    {"HKEY_CURRENT_USER", os::kHkeyCurrentUser},
    {"HKEY_LOCAL_MACHINE", os::kHkeyLocalMachine},
    {"HKEY_USERS", os::kHkeyUsers},
    {"HKEY_PERFORMANCE_DATA", os::kHkeyPerformanceData},
    {"HKEY_CURRENT_CONFIG", os::kHkeyCurrentConfig},
}};

/// Returns the elements between backslashes, without empty ones.
std::vector<std::string> ElementsOf(std::string_view path) {
  std::vector<std::string> elements;
  std::string element;
  for (const char character : base::Trim(path)) {
    if (character != '\\') {
      element += character;
    } else if (!element.empty()) {
      elements.push_back(element);
      element.clear();
    }
  }
  if (!element.empty()) elements.push_back(element);
  return elements;
}

const Root* FindRoot(const std::string& name) {
  for (const Root& root : kRoots) {
    if (root.name == base::UpperAscii(name)) return &root;
  }
  return nullptr;
}

}  // namespace

std::int32_t RegistryPaths::GetSubkeyHandle(std::string_view path) {
  const std::vector<std::string> elements = ElementsOf(path);
  if (elements.empty() || elements.size() - 1 > kMaxLevels) return kNoKey;
  const Root* const root = FindRoot(elements.front());
  if (root == nullptr) return kNoKey;
  os::KeyHandle deepest = root->handle;
  std::vector<os::KeyHandle> opened;
  bool is_open = true;
  for (const std::string& element : std::span(elements).subspan(1)) {
    os::KeyHandle key = 0;
    is_open = registry_.RegOpenKeyExA(deepest, element.c_str(), os::kKeyAllRights, key) == os::kErrorSuccess;
    if (!is_open) break;
    opened.push_back(key);
    deepest = key;
  }
  if (is_open && !opened.empty()) opened.pop_back();  // the caller owns the deepest one
  for (const os::KeyHandle key : opened) registry_.RegCloseKey(key);
  return is_open ? static_cast<std::int32_t>(deepest) : kNoKey;
}

bool RegistryPaths::CloseSubkey(std::int32_t handle) {
  return registry_.RegCloseKey(static_cast<os::KeyHandle>(handle)) != os::kErrorSuccess;
}

void RegistryPaths::DeleteValue(std::string_view path, const char* value_name) {
  const std::int32_t key = GetSubkeyHandle(path);
  if (key == kNoKey) return;
  static_cast<void>(registry_.RegDeleteValueA(static_cast<os::KeyHandle>(key), value_name));
  CloseSubkey(key);
}

std::string RegistryPaths::RegDelete() {
  DeleteValue(kRunPath, kRunValue);
  return {};
}

void RegistryPaths::CreateRegistryKey(const std::string& path, os::KeyHandle root) {
  const auto made_and_closed = RegistryKey::Create(registry_, root, path);
}

}  // namespace qdix::registry
