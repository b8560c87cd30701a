// Files of the simulated machine, byte by byte.
#include <algorithm>

#include "os/simulated/simulated_files.h"

namespace qdix::os::simulated {

bool SimulatedFiles::IsProtected(const std::string& upper_path) const {
  return disk_is_protected_ || read_only_.contains(upper_path);
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
  if ((!exists && !makes) || (writes && IsProtected(upper))) return kInvalidFile;
  if (makes) files_[upper].clear();
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
  written_bytes = static_cast<std::uint32_t>(std::min<std::uint64_t>(size_bytes, free_bytes_));
  free_bytes_ -= written_bytes;
  std::string& content = files_[open->path];
  content.resize(std::max(content.size(), open->place + written_bytes));
  std::copy_n(bytes, written_bytes, content.begin() + static_cast<std::ptrdiff_t>(open->place));
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
  if (!files_.contains(source) || files_.contains(target) || disk_is_protected_) return false;
  files_[target] = files_[source];
  files_.erase(source);
  return true;
}

bool SimulatedFiles::DeleteFileA(const char* path) {
  const std::string upper = UpperPath(path);
  if (log_.RecordAndFail("DeleteFileA", path) || IsProtected(upper)) return false;
  return files_.erase(upper) == 1;
}

}  // namespace qdix::os::simulated
