#include "tuning/system_ini.h"

#include <array>

#include "base/numbers.h"
#include "base/text.h"

namespace qdix::tuning {

namespace {

constexpr std::uint32_t kBufferBytes = 255;
constexpr const char* kMissing = "0";

}  // namespace

SystemIni::Entry SystemIni::ReadIniText(const char* section, const char* key) const {
  std::array<char, kBufferBytes> buffer{};
  const std::uint32_t copied = profile_files_.GetPrivateProfileStringA(section, key, kMissing, buffer.data(),
                                                                       kBufferBytes, kSystemIni);
  return {.text = std::string(base::CutAtNul({buffer.data(), buffer.size()})), .copied = copied};
}

double SystemIni::ReadIniValue(const char* section, const char* key) const {
  return base::ParseLeadingNumber(ReadIniText(section, key).text);
}

void SystemIni::WriteIniText(const char* section, const char* key, const std::string& text,
                             const char* file) {
  profile_files_.WritePrivateProfileStringA(section, key, text.c_str(), file);
}

void SystemIni::WriteIniValue(const char* section, const char* key, std::int32_t value, const char* file) {
  WriteIniText(section, key, base::TextOf(value), file);
}

void SystemIni::DeleteIniValue(const char* section, const char* key, const char* file) {
  profile_files_.WritePrivateProfileStringA(section, key, nullptr, file);
}

std::string SystemIni::WindowsFolder() const {
  std::array<char, kBufferBytes> buffer{};
  // If the folder name does not fit, the buffer stays empty and the later copy fails.
  static_cast<void>(files_.GetWindowsDirectoryA(buffer.data(), kBufferBytes));
  std::string folder(base::CutAtNul({buffer.data(), buffer.size()}));
  if (!folder.ends_with('\\')) folder += '\\';
  return folder;
}

void SystemIni::BackupSystemINI() {
  const std::string source = WindowsFolder() + kSystemIni;
  const std::string target = WindowsFolder() + kSystemBackup;
  files_.CopyFileA(source.c_str(), target.c_str());
}

}  // namespace qdix::tuning
