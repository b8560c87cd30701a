#include "tests/e2e/driver/system_ini_keeper.h"

#include <array>

#include "tests/e2e/driver/file_keeper.h"

namespace qdix::e2e {

namespace {

constexpr std::size_t kLongestEntry = 1024;
/// Default that means a missing entry; no entry holds it.
constexpr const char* kMissing = "\x01";

std::string PathOf(const std::string& name) {
  std::array<char, MAX_PATH> folder{};
  GetWindowsDirectoryA(folder.data(), folder.size());
  return std::string(folder.data()) + "\\" + name;
}

/// Drops the cached contents of the profile file, which a process keeps for a while.
void DiscardRead() { WritePrivateProfileStringA(nullptr, nullptr, nullptr, kSystemIni); }

}  // namespace

std::optional<std::string> WindowsFile(const std::string& name) { return FileBytes(PathOf(name)); }

void SetWindowsFile(const std::string& name, const std::optional<std::string>& bytes) {
  const std::string path = PathOf(name);
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  SetFileBytes(path, bytes);
  DiscardRead();
}

std::optional<std::string> SystemIniText(const std::string& section, const std::string& key) {
  DiscardRead();
  std::array<char, kLongestEntry> text{};
  GetPrivateProfileStringA(section.c_str(), key.c_str(), kMissing, text.data(), text.size(), kSystemIni);
  if (std::string(text.data()) == kMissing) return std::nullopt;
  return text.data();
}

void SetSystemIniText(const std::string& section, const std::string& key, const std::string& text) {
  WritePrivateProfileStringA(section.c_str(), key.c_str(), text.c_str(), kSystemIni);
  DiscardRead();
}

void SystemIniKeeper::PutBack() const {
  SetWindowsFile(kSystemIni, system_ini_);
  SetWindowsFile(kSystemBackup, backup_);
  record_.PutBack();
  templates_.PutBack();
}

bool SystemIniKeeper::NothingChanged() const {
  return WindowsFile(kSystemIni) == system_ini_ && WindowsFile(kSystemBackup) == backup_ &&
         RegistryTree(kMachineKey) == record_ && RegistryTree(kTemplates) == templates_;
}

}  // namespace qdix::e2e
