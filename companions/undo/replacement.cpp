#include "undo/replacement.h"

#include "shell/file_content.h"
#include "tuning/system_ini.h"

namespace qdix::undo {

namespace {

using Outcome = Replacement::Outcome;

/// Name of the new file until it is renamed. These are DOS names, so they also work at the command prompt.
constexpr const char* kNewName = "SYSTEM.Q00";
constexpr const char* kKeptName = "SYSTEM.Q";
/// Maximum number of old files that are kept.
constexpr int kMaxKept = 99;

/// Returns a name from SYSTEM.Q01 to SYSTEM.Q99.
std::string KeptName(int number) {
  std::string name = kKeptName;
  name += static_cast<char>('0' + number / 10);
  name += static_cast<char>('0' + number % 10);
  return name;
}

class SystemIniFiles {
 public:
  SystemIniFiles(os::Files& files, const std::string& folder) : files_(files), folder_(folder) {}

  Replacement Replace(const std::string& content) {
    const std::uint32_t attributes = Attributes(tuning::kSystemIni);
    const bool is_there = attributes != os::kInvalidFileAttributes;
    if (is_there && (attributes & os::kFileAttributeReadOnly) != 0) return {};
    Replacement replaced = WriteNew(content) ? ChangeNames(is_there) : Replacement{};
    if (replaced.outcome == Outcome::kRefused) files_.DeleteFileA(PathOf(kNewName).c_str());
    return replaced;
  }

 private:
  [[nodiscard]] std::string PathOf(const std::string& name) const { return folder_ + name; }
  [[nodiscard]] std::uint32_t Attributes(const std::string& name) {
    return files_.GetFileAttributesA(PathOf(name).c_str());
  }
  [[nodiscard]] bool Rename(const std::string& from, const std::string& to) {
    return files_.MoveFileA(PathOf(from).c_str(), PathOf(to).c_str());
  }

  /// Reads the file again after writing, because from now on everything depends on it.
  [[nodiscard]] bool WriteNew(const std::string& content) {
    const std::string path = PathOf(kNewName);
    const os::FileHandle file = files_.CreateFileA(path.c_str(), os::kGenericWrite, os::kCreateAlways);
    if (file == os::kInvalidFile) return false;
    const auto size_bytes = static_cast<std::uint32_t>(content.size());
    std::uint32_t written_bytes = 0;
    const bool is_written =
        files_.WriteFile(file, content.data(), size_bytes, written_bytes) && files_.FlushFileBuffers(file);
    files_.CloseHandle(file);
    return is_written && shell::ReadWholeFile(files_, path, size_bytes + 1) == content;
  }

  Replacement ChangeNames(bool is_there) {
    std::string kept_name;
    if (is_there) {
      kept_name = KeepOld();
      if (kept_name.empty()) return {};
    }
    if (Rename(kNewName, tuning::kSystemIni)) return {Outcome::kDone, kept_name};
    const bool is_back = !is_there || Rename(kept_name, tuning::kSystemIni);
    return {is_back ? Outcome::kRefused : Outcome::kRenamed, kept_name};
  }

  /// Renames the old file to the first free name and returns that name; empty if that fails.
  [[nodiscard]] std::string KeepOld() {
    for (int number = 1; number <= kMaxKept; ++number) {
      const std::string name = KeptName(number);
      if (Attributes(name) != os::kInvalidFileAttributes) continue;
      return Rename(tuning::kSystemIni, name) ? name : std::string();
    }
    return {};
  }

  os::Files& files_;
  const std::string folder_;
};

}  // namespace

Replacement ReplaceSystemIni(os::Files& files, const std::string& folder, const std::string& content) {
  return SystemIniFiles(files, folder).Replace(content);
}

}  // namespace qdix::undo
