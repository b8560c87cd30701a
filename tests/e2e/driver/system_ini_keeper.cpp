// Files are read and written by the system's own calls: the file streams of the library disturb the output of
// the test program under Wine.
#include "tests/e2e/driver/system_ini_keeper.h"

#include <array>

namespace qdix::e2e {

namespace {

constexpr std::size_t kLongestEntry = 1024;
/// Stands for a missing entry; no entry holds it.
constexpr const char* kMissing = "\x01";

std::string PathOf(const std::string& name) {
  std::array<char, MAX_PATH> folder{};
  GetWindowsDirectoryA(folder.data(), folder.size());
  return std::string(folder.data()) + "\\" + name;
}

/// What a process has read of a profile file it keeps for a while.
void ForgetWhatWasRead() { WritePrivateProfileStringA(nullptr, nullptr, nullptr, kSystemIni); }

}  // namespace

std::optional<std::string> WindowsFile(const std::string& name) {
  const HANDLE file = CreateFileA(PathOf(name).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                  nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return std::nullopt;
  std::string bytes(GetFileSize(file, nullptr), '\0');
  DWORD count = 0;
  const bool is_read = ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) != 0;
  CloseHandle(file);
  if (!is_read || count != bytes.size()) return std::nullopt;
  return bytes;
}

void SetWindowsFile(const std::string& name, const std::optional<std::string>& bytes) {
  const std::string path = PathOf(name);
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  if (!bytes.has_value()) {
    DeleteFileA(path.c_str());
  } else {
    const HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD count = 0;
    WriteFile(file, bytes->data(), static_cast<DWORD>(bytes->size()), &count, nullptr);
    CloseHandle(file);
  }
  ForgetWhatWasRead();
}

std::optional<std::string> SystemIniText(const std::string& section, const std::string& key) {
  ForgetWhatWasRead();
  std::array<char, kLongestEntry> text{};
  GetPrivateProfileStringA(section.c_str(), key.c_str(), kMissing, text.data(), text.size(), kSystemIni);
  if (std::string(text.data()) == kMissing) return std::nullopt;
  return text.data();
}

void SetSystemIniText(const std::string& section, const std::string& key, const std::string& text) {
  WritePrivateProfileStringA(section.c_str(), key.c_str(), text.c_str(), kSystemIni);
  ForgetWhatWasRead();
}

SystemIniKeeper::~SystemIniKeeper() {
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
