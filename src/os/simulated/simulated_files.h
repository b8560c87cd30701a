// Files of the simulated machine, kept in memory, including profile files. Paths ignore case.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "os/files.h"
#include "os/profile_files.h"
#include "os/simulated/call_log.h"

namespace qdix::os::simulated {

class SimulatedFiles final : public Files, public ProfileFiles {
 public:
  explicit SimulatedFiles(CallLog& log) : log_(log) {}

  std::uint32_t GetWindowsDirectoryA(char* buffer, std::uint32_t size_bytes) override;
  bool CopyFileA(const char* from, const char* to) override;
  std::uint32_t GetFileAttributesA(const char* path) override;
  bool FindFirstFileA(const char* path, FoundFile& found) override;
  FileHandle CreateFileA(const char* path, std::uint32_t access, std::uint32_t disposition) override;
  void CloseHandle(FileHandle file) override;
  std::uint32_t GetFileSize(FileHandle file) override;
  bool ReadFile(FileHandle file, char* buffer, std::uint32_t size_bytes, std::uint32_t& read_bytes) override;
  bool WriteFile(FileHandle file, const char* bytes, std::uint32_t size_bytes,
                 std::uint32_t& written_bytes) override;
  bool FlushFileBuffers(FileHandle file) override;
  bool MoveFileA(const char* from, const char* to) override;
  bool DeleteFileA(const char* path) override;
  bool IsDBCSLeadByte(char byte) override;

  std::uint32_t GetPrivateProfileStringA(const char* section, const char* key, const char* missing,
                                         char* buffer, std::uint32_t size_bytes, const char* file) override;
  bool WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                  const char* file) override;

  // The test's view of the disk; none of these calls is recorded.
  void SetWindowsDirectory(const std::string& folder) { windows_directory_ = folder; }
  void Write(const std::string& path, const std::string& content) { Store(UpperPath(path), content); }
  [[nodiscard]] std::optional<std::string> Read(const std::string& path) const;
  /// False if there is no such file.
  bool Erase(const std::string& path) { return files_.erase(UpperPath(path)) == 1; }
  void Protect(const std::string& path) { read_only_.insert(UpperPath(path)); }
  /// Another program opens this file for exclusive use until Unlock.
  void Hold(const std::string& path) { held_.insert(UpperPath(path)); }
  void Unlock(const std::string& path) { held_.erase(UpperPath(path)); }
  /// Makes the disk read-only, like a CD: existing files can still be read.
  void ProtectDisk() { disk_is_protected_ = true; }
  /// Simulates a Japanese Windows, whose file names have two-byte characters.
  void MakeJapanese() { is_japanese_ = true; }
  /// Sets how many more bytes fit on the disk.
  void LimitFreeBytes(std::uint64_t bytes) { free_bytes_ = bytes; }
  /// Sets the date that changed files get, in days since 30 December 1899.
  void SetNow(double days) { now_days_ = days; }
  /// Returns how often the disk was written to. A copy counts as two writes: it empties its target first.
  [[nodiscard]] int WriteCount() const { return writes_; }
  /// Cuts the power during this write; the first is 1. Half of its bytes reach the disk, a rename has no
  /// effect, and nothing is written afterwards.
  void CutPowerInWrite(int number) { last_write_ = number; }
  [[nodiscard]] int OpenCount() const { return static_cast<int>(open_.size()); }

 private:
  struct OpenFile {
    std::string path;
    std::uint32_t access;
    std::size_t place;
  };
  /// Returns null, and records a misuse, if the handle is not open.
  [[nodiscard]] OpenFile* FindOpen(FileHandle file);
  /// True if the file cannot be written.
  [[nodiscard]] bool IsProtected(const std::string& upper_path) const;

  enum class Power : unsigned char {
    kOn,
    kFailsNow,
    kOff
  };
  /// Counts a write and decides whether the power lasts.
  [[nodiscard]] Power BeginWrite();
  void Store(const std::string& upper_path, const std::string& content);
  /// Writes at `place` as many bytes as fit on the disk, or half of them if the power fails. Returns the
  /// number of bytes written.
  std::size_t Put(const std::string& upper_path, std::size_t place, std::string_view bytes);
  void MoveName(const std::string& from, const std::string& to);
  bool WriteWithinFreeBytes(const std::string& upper_path, const std::string& content);
  static std::string UpperPath(const std::string& path);
  /// Returns the full path in upper case; a bare name is in the Windows folder.
  [[nodiscard]] std::string ProfilePath(const std::string& file) const;
  void Flush(const std::string& file);

  CallLog& log_;
  std::string windows_directory_ = "C:\\WINDOWS";
  std::map<std::string, std::string> files_;
  /// Dates of the last change, in days since 30 December 1899.
  std::map<std::string, double> changed_days_;
  std::set<std::string> read_only_;
  std::set<std::string> held_;
  /// Profile files that the system has cached.
  std::set<std::string> kept_;
  std::map<FileHandle, OpenFile> open_;
  FileHandle next_file_ = 0x40;
  std::uint64_t free_bytes_ = ~std::uint64_t{0};
  bool disk_is_protected_ = false;
  bool is_japanese_ = false;
  double now_days_ = 0;
  int writes_ = 0;
  /// The write during which the power fails; 0 if it does not.
  int last_write_ = 0;
};

}  // namespace qdix::os::simulated
