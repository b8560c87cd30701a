#include "os/simulated/simulated_registry.h"

#include <algorithm>

#include "base/text.h"

namespace qdix::os::simulated {

namespace {

std::string RootName(KeyHandle root) {
  switch (root) {
    case kHkeyClassesRoot:
      return "HKCR";
    case kHkeyCurrentUser:
      return "HKCU";
    case kHkeyLocalMachine:
      return "HKLM";
    case kHkeyUsers:
      return "HKU";
    case kHkeyPerformanceData:
      return "HKPD";
    case kHkeyCurrentConfig:
      return "HKCC";
    case kHkeyDynData:
      return "HKDD";
    default:
      return {};
  }
}

/// Returns a key as the call log shows it, with the requested access rights.
std::string ShownKey(const std::optional<std::string>& path, std::uint32_t access) {
  return path.value_or("invalid") + ", " + std::to_string(access);
}

std::string Join(const std::string& parent, const std::string& subkey) {
  return subkey.empty() ? parent : parent + "\\" + subkey;
}

}  // namespace

bool SimulatedRegistry::NoCase::operator()(const std::string& a, const std::string& b) const {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return static_cast<unsigned char>(base::UpperAscii(x)) < static_cast<unsigned char>(base::UpperAscii(y));
  });
}

std::optional<SimulatedRegistry::OpenKey> SimulatedRegistry::FindOpen(KeyHandle key) const {
  const auto found = open_.find(key);
  if (found != open_.end()) return found->second;
  const std::string root = RootName(key);
  if (root.empty()) return std::nullopt;
  return OpenKey{root, kKeyAllAccess};
}

std::optional<std::string> SimulatedRegistry::FullPath(KeyHandle parent, const std::string& subkey) const {
  const auto open = FindOpen(parent);
  if (!open) return std::nullopt;
  return Join(open->path, subkey);
}

bool SimulatedRegistry::RefusesWrites(const std::string& path, std::uint32_t access) const {
  return (access & kKeySetValue) != 0 && write_protected_.contains(path);
}

KeyHandle SimulatedRegistry::Open(const std::string& path, std::uint32_t access) {
  const KeyHandle handle = next_handle_++;
  open_[handle] = {path, access};
  return handle;
}

/// Creates a key together with all keys above it.
void SimulatedRegistry::Create(const std::string& path) {
  for (std::size_t end = path.find('\\'); end != std::string::npos; end = path.find('\\', end + 1)) {
    keys_.try_emplace(path.substr(0, end));
  }
  keys_.try_emplace(path);
}

std::int32_t SimulatedRegistry::RegOpenKeyExA(KeyHandle parent, const char* subkey, std::uint32_t access,
                                              KeyHandle& opened) {
  const auto path = FullPath(parent, subkey);
  if (log_.RecordAndFail("RegOpenKeyExA", ShownKey(path, access))) return kErrorAccessDenied;
  if (!path) return kErrorInvalidHandle;
  if (!keys_.contains(*path) && path->find('\\') != std::string::npos) return kErrorFileNotFound;
  if (RefusesWrites(*path, access)) return kErrorAccessDenied;
  opened = Open(*path, access);
  return kErrorSuccess;
}

std::int32_t SimulatedRegistry::RegCreateKeyExA(KeyHandle parent, const char* subkey, std::uint32_t access,
                                                KeyHandle& opened) {
  const auto path = FullPath(parent, subkey);
  if (log_.RecordAndFail("RegCreateKeyExA", ShownKey(path, access))) return kErrorAccessDenied;
  if (!path) return kErrorInvalidHandle;
  if (RefusesWrites(*path, access)) return kErrorAccessDenied;
  Create(*path);
  opened = Open(*path, access);
  return kErrorSuccess;
}

std::uint32_t SimulatedRegistry::MaxAccess(const std::string& path) const {
  return write_protected_.contains(path) ? kKeyQueryValue : kKeyAllAccess;
}

std::int32_t SimulatedRegistry::RegOpenKeyA(KeyHandle parent, const char* subkey, KeyHandle& opened) {
  const auto path = FullPath(parent, subkey);
  if (log_.RecordAndFail("RegOpenKeyA", path.value_or("invalid"))) return kErrorAccessDenied;
  if (!path) return kErrorInvalidHandle;
  if (!keys_.contains(*path) && path->find('\\') != std::string::npos) return kErrorFileNotFound;
  opened = Open(*path, MaxAccess(*path));
  return kErrorSuccess;
}

std::int32_t SimulatedRegistry::RegCreateKeyA(KeyHandle parent, const char* subkey, KeyHandle& opened) {
  const auto path = FullPath(parent, subkey);
  if (log_.RecordAndFail("RegCreateKeyA", path.value_or("invalid"))) return kErrorAccessDenied;
  if (!path) return kErrorInvalidHandle;
  Create(*path);
  opened = Open(*path, MaxAccess(*path));
  return kErrorSuccess;
}

std::int32_t SimulatedRegistry::RegQueryValueExA(KeyHandle key, const char* value_name, std::uint32_t& type,
                                                 std::uint8_t* data, std::uint32_t& size_bytes) {
  const auto open = FindOpen(key);
  if (log_.RecordAndFail("RegQueryValueExA", value_name)) return kErrorFileNotFound;
  queried_.push_back({log_.Calls().size(), value_name});
  if (!open) return kErrorInvalidHandle;
  if ((open->access & kKeyQueryValue) == 0) return kErrorAccessDenied;
  const auto& values = keys_[open->path].values;
  const auto found = values.find(value_name);
  if (found == values.end()) return kErrorFileNotFound;
  type = found->second.type;
  const auto size = static_cast<std::uint32_t>(found->second.bytes.size());
  const std::uint32_t room = size_bytes;
  size_bytes = size;
  if (data == nullptr) return kErrorSuccess;
  if (room < size) return kErrorMoreData;
  std::copy(found->second.bytes.begin(), found->second.bytes.end(), data);
  return kErrorSuccess;
}

std::string SimulatedRegistry::ShownValue(const std::optional<OpenKey>& key, const char* value_name) {
  return (key ? key->path : "invalid") + ": " + value_name;
}

std::int32_t SimulatedRegistry::RegSetValueExA(KeyHandle key, const char* value_name, std::uint32_t type,
                                               const std::uint8_t* data, std::uint32_t size_bytes) {
  const auto open = FindOpen(key);
  if (log_.RecordAndFail("RegSetValueExA", ShownValue(open, value_name))) return kErrorAccessDenied;
  if (!open) return kErrorInvalidHandle;
  if ((open->access & kKeySetValue) == 0) return kErrorAccessDenied;
  keys_[open->path].values[value_name] = {type, std::string(reinterpret_cast<const char*>(data), size_bytes)};
  written_.push_back({log_.Calls().size(), value_name});
  return kErrorSuccess;
}

std::int32_t SimulatedRegistry::RegDeleteValueA(KeyHandle key, const char* value_name) {
  const auto open = FindOpen(key);
  if (log_.RecordAndFail("RegDeleteValueA", ShownValue(open, value_name))) return kErrorAccessDenied;
  if (!open) return kErrorInvalidHandle;
  if ((open->access & kKeySetValue) == 0) return kErrorAccessDenied;
  return keys_[open->path].values.erase(value_name) == 1 ? kErrorSuccess : kErrorFileNotFound;
}

std::int32_t SimulatedRegistry::RegFlushKey(KeyHandle key) {
  const auto open = FindOpen(key);
  if (log_.RecordAndFail("RegFlushKey", open ? open->path : "invalid")) return kErrorAccessDenied;
  return open ? kErrorSuccess : kErrorInvalidHandle;
}

std::int32_t SimulatedRegistry::RegCloseKey(KeyHandle key) {
  log_.Record("RegCloseKey");
  if (open_.erase(key) == 1) return kErrorSuccess;
  log_.Misuse("a key closed that is not open");
  return kErrorInvalidHandle;
}

void SimulatedRegistry::CreateKey(KeyHandle root, const std::string& path) {
  Create(Join(RootName(root), path));
}

void SimulatedRegistry::SetValue(KeyHandle root, const std::string& path, const std::string& name,
                                 const RegistryValue& value) {
  CreateKey(root, path);
  keys_[Join(RootName(root), path)].values[name] = value;
}

bool SimulatedRegistry::KeyExists(KeyHandle root, const std::string& path) const {
  return keys_.contains(Join(RootName(root), path));
}

std::map<std::string, RegistryValue> SimulatedRegistry::Values(KeyHandle root,
                                                               const std::string& path) const {
  const auto key = keys_.find(Join(RootName(root), path));
  if (key == keys_.end()) return {};
  return {key->second.values.begin(), key->second.values.end()};
}

std::optional<RegistryValue> SimulatedRegistry::Value(KeyHandle root, const std::string& path,
                                                      const std::string& name) const {
  const auto key = keys_.find(Join(RootName(root), path));
  if (key == keys_.end()) return std::nullopt;
  const auto value = key->second.values.find(name);
  if (value == key->second.values.end()) return std::nullopt;
  return value->second;
}

int SimulatedRegistry::CloseHandlesOf(KeyHandle root, const std::string& path) {
  const std::string full_path = Join(RootName(root), path);
  return static_cast<int>(std::erase_if(open_, [&full_path](const auto& open) {
    return base::EqualsIgnoringCase(open.second.path, full_path);
  }));
}

void SimulatedRegistry::DenyWrites(KeyHandle root, const std::string& path) {
  write_protected_.insert(Join(RootName(root), path));
}

}  // namespace qdix::os::simulated
