// The open files of the simulated machine: reading and writing their bytes.
#include <algorithm>

#include "os/simulated/simulated_files.h"

namespace qdix::os::simulated {

bool SimulatedFiles::IsProtected(const std::string& upper_path) const {
  return disk_is_protected_ || read_only_.contains(upper_path) || held_.contains(upper_path);
}

SimulatedFiles::Power SimulatedFiles::BeginWrite() {
  ++writes_;
  if (last_write_ == 0 || writes_ < last_write_) return Power::kOn;
  return writes_ == last_write_ ? Power::kFailsNow : Power::kOff;
}

void SimulatedFiles::Store(const std::string& upper_path, const std::string& content) {
  files_[upper_path] = content;
  changed_days_[upper_path] = now_days_;
}

std::size_t SimulatedFiles::Put(const std::string& upper_path, std::size_t place, std::string_view bytes) {
  const Power power = BeginWrite();
  if (power == Power::kOff) return 0;
  if (power == Power::kFailsNow) bytes = bytes.substr(0, bytes.size() / 2);
  bytes = bytes.substr(0, static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), free_bytes_)));
  free_bytes_ -= bytes.size();
  std::string content = files_[upper_path];
  content.resize(std::max(content.size(), place + bytes.size()));
  std::copy(bytes.begin(), bytes.end(), content.begin() + static_cast<std::ptrdiff_t>(place));
  Store(upper_path, content);
  return bytes.size();
}

SimulatedFiles::OpenFile* SimulatedFiles::FindOpen(FileHandle file) {
  const auto found = open_.find(file);
  if (found != open_.end()) return &found->second;
  log_.Misuse("a file used that is not open");
  return nullptr;
}

FileHandle SimulatedFiles::CreateFileA(const char* path, std::uint32_t access, std::uint32_t disposition) {
  const std::string upper = UpperPath(path);
  if (log_.RecordAndFail("CreateFileA", std::string(path) + ", " + std::to_string(disposition))) {
    return kInvalidFile;
  }
  const bool exists = files_.contains(upper);
  const bool makes = disposition == kCreateAlways || (disposition == kOpenAlways && !exists);
  const bool writes = makes || (access & kGenericWrite) != 0;
  if ((!exists && !makes) || (writes && IsProtected(upper)) || held_.contains(upper)) return kInvalidFile;
  if (makes) {
    // An emptied file is the worst result of a power failure.
    const Power power = BeginWrite();
    if (power != Power::kOff) Store(upper, "");
    if (power != Power::kOn) return kInvalidFile;
  }
  open_[next_file_] = {upper, access, 0};
  return next_file_++;
}

void SimulatedFiles::CloseHandle(FileHandle file) {
  log_.Record("CloseHandle");
  if (open_.erase(file) == 0) log_.Misuse("a file closed that is not open");
}

std::uint32_t SimulatedFiles::GetFileSize(FileHandle file) {
  const OpenFile* const open = FindOpen(file);
  if (log_.RecordAndFail("GetFileSize") || open == nullptr) return kInvalidFileSize;
  return static_cast<std::uint32_t>(files_[open->path].size());
}

bool SimulatedFiles::ReadFile(FileHandle file, char* buffer, std::uint32_t size_bytes,
                              std::uint32_t& read_bytes) {
  read_bytes = 0;
  OpenFile* const open = FindOpen(file);
  if (log_.RecordAndFail("ReadFile", std::to_string(size_bytes)) || open == nullptr) return false;
  const std::string& content = files_[open->path];
  const std::size_t place = std::min(open->place, content.size());
  read_bytes = static_cast<std::uint32_t>(std::min<std::size_t>(size_bytes, content.size() - place));
  std::copy_n(content.begin() + static_cast<std::ptrdiff_t>(place), read_bytes, buffer);
  open->place = place + read_bytes;
  return true;
}

bool SimulatedFiles::WriteFile(FileHandle file, const char* bytes, std::uint32_t size_bytes,
                               std::uint32_t& written_bytes) {
  written_bytes = 0;
  OpenFile* const open = FindOpen(file);
  if (log_.RecordAndFail("WriteFile", std::to_string(size_bytes)) || open == nullptr) return false;
  if ((open->access & kGenericWrite) == 0) return false;
  written_bytes = static_cast<std::uint32_t>(Put(open->path, open->place, {bytes, size_bytes}));
  open->place += written_bytes;
  return written_bytes == size_bytes;
}

bool SimulatedFiles::FlushFileBuffers(FileHandle file) {
  return FindOpen(file) != nullptr && !log_.RecordAndFail("FlushFileBuffers");
}

bool SimulatedFiles::MoveFileA(const char* from, const char* to) {
  const std::string source = UpperPath(from);
  const std::string target = UpperPath(to);
  if (log_.RecordAndFail("MoveFileA", std::string(from) + ", " + to)) return false;
  if (kept_.contains(source) || kept_.contains(target)) {
    log_.Misuse(std::string("MoveFileA of a profile file that is kept in memory: ") + from + ", " + to);
  }
  if (!files_.contains(source) || files_.contains(target)) return false;
  if (disk_is_protected_ || held_.contains(source)) return false;
  if (BeginWrite() != Power::kOn) return false;
  MoveName(source, target);
  return true;
}

void SimulatedFiles::MoveName(const std::string& from, const std::string& to) {
  files_[to] = files_[from];
  changed_days_[to] = changed_days_[from];
  read_only_.erase(to);
  if (read_only_.erase(from) == 1) read_only_.insert(to);
  files_.erase(from);
}

bool SimulatedFiles::DeleteFileA(const char* path) {
  const std::string upper = UpperPath(path);
  if (log_.RecordAndFail("DeleteFileA", path) || IsProtected(upper)) return false;
  return files_.contains(upper) && BeginWrite() == Power::kOn && files_.erase(upper) == 1;
}

}  // namespace qdix::os::simulated
