#include "self_test/private_files.h"

#include <algorithm>

#include "base/text.h"

namespace qdix::self_test {

bool IsInFolder(std::string_view folder, std::string_view path) {
  const std::size_t last = path.rfind('\\');
  if (last == std::string_view::npos || last + 1 == path.size()) return false;
  return base::EqualsIgnoringCase(path.substr(0, last), folder);
}

std::uint32_t PrivateFiles::GetWindowsDirectoryA(char* buffer, std::uint32_t size_bytes) {
  const auto length = static_cast<std::uint32_t>(folder_.size());
  if (length >= size_bytes) return length + 1;
  std::copy_n(folder_.c_str(), length + 1, buffer);
  return length;
}

bool PrivateFiles::CopyFileA(const char* from, const char* to) {
  return IsInFolder(folder_, to) && real_.CopyFileA(from, to);
}

std::uint32_t PrivateFiles::GetFileAttributesA(const char* path) { return real_.GetFileAttributesA(path); }

bool PrivateFiles::FindFirstFileA(const char* path, os::FoundFile& found) {
  return real_.FindFirstFileA(path, found);
}

os::FileHandle PrivateFiles::CreateFileA(const char* path, std::uint32_t access, std::uint32_t disposition) {
  const bool changes = access != os::kGenericRead || disposition != os::kOpenExisting;
  if (changes && !IsInFolder(folder_, path)) return os::kInvalidFile;
  return real_.CreateFileA(path, access, disposition);
}

void PrivateFiles::CloseHandle(os::FileHandle file) { real_.CloseHandle(file); }

std::uint32_t PrivateFiles::GetFileSize(os::FileHandle file) { return real_.GetFileSize(file); }

bool PrivateFiles::ReadFile(os::FileHandle file, char* buffer, std::uint32_t size_bytes,
                            std::uint32_t& read_bytes) {
  return real_.ReadFile(file, buffer, size_bytes, read_bytes);
}

bool PrivateFiles::WriteFile(os::FileHandle file, const char* bytes, std::uint32_t size_bytes,
                             std::uint32_t& written_bytes) {
  return real_.WriteFile(file, bytes, size_bytes, written_bytes);
}

bool PrivateFiles::FlushFileBuffers(os::FileHandle file) { return real_.FlushFileBuffers(file); }

bool PrivateFiles::MoveFileA(const char* from, const char* to) {
  return IsInFolder(folder_, from) && IsInFolder(folder_, to) && real_.MoveFileA(from, to);
}

bool PrivateFiles::DeleteFileA(const char* path) {
  return IsInFolder(folder_, path) && real_.DeleteFileA(path);
}

bool PrivateFiles::IsDBCSLeadByte(char byte) { return real_.IsDBCSLeadByte(byte); }

std::string PrivateProfileFiles::PathOf(const char* file) const {
  const std::string path = file;
  return path.find('\\') == std::string::npos ? folder_ + "\\" + path : path;
}

std::uint32_t PrivateProfileFiles::GetPrivateProfileStringA(const char* section, const char* key,
                                                            const char* missing, char* buffer,
                                                            std::uint32_t size_bytes, const char* file) {
  return real_.GetPrivateProfileStringA(section, key, missing, buffer, size_bytes, PathOf(file).c_str());
}

bool PrivateProfileFiles::WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                                     const char* file) {
  const std::string path = PathOf(file);
  return IsInFolder(folder_, path) && real_.WritePrivateProfileStringA(section, key, value, path.c_str());
}

}  // namespace qdix::self_test
