#include "launcher/launcher_file.h"

#include <algorithm>

#include "base/text.h"

namespace qdix::launcher {

namespace {

/// The field that begins at `place` of the content, as far as the content goes.
std::string ReadField(std::string_view content, std::size_t place, std::size_t width) {
  if (place >= content.size()) return {};
  return std::string(base::Trim(content.substr(place, width)));
}

void AppendField(std::string& record, const std::string& field, std::size_t width) {
  record.append(field, 0, width);
  record.append(width - std::min(field.size(), width), ' ');
}

}  // namespace

/// The length of a record is odd, so nothing lies exactly half-way.
std::size_t RecordCount(std::size_t file_bytes) {
  const std::size_t rest = file_bytes % kRecordBytes;
  return file_bytes / kRecordBytes + (rest > kRecordBytes / 2 ? 1 : 0);
}

LauncherEntry ReadRecord(std::string_view content, std::size_t index) {
  const std::size_t start = index * kRecordBytes;
  return {ReadField(content, start, kNameWidth), ReadField(content, start + kNameWidth, kPathWidth),
          ReadField(content, start + kNameWidth + kPathWidth, kStartInWidth)};
}

std::vector<LauncherEntry> ReadRecords(std::string_view content) {
  std::vector<LauncherEntry> entries;
  const std::size_t count = RecordCount(content.size());
  for (std::size_t index = 0; index < count; ++index) entries.push_back(ReadRecord(content, index));
  return entries;
}

std::string RecordBytes(const LauncherEntry& entry) {
  std::string record;
  record.reserve(kRecordBytes);
  AppendField(record, entry.name, kNameWidth);
  AppendField(record, entry.path, kPathWidth);
  AppendField(record, entry.start_in, kStartInWidth);
  return record;
}

std::optional<std::string> ReadWholeFile(os::Files& files, const std::string& path,
                                         std::uint32_t most_bytes) {
  const os::FileHandle file = files.CreateFileA(path.c_str(), os::kGenericRead, os::kOpenExisting);
  if (file == os::kInvalidFile) return std::nullopt;
  std::string content;
  std::uint32_t read_bytes = 0;
  const std::uint32_t file_bytes = files.GetFileSize(file);
  const std::uint32_t size_bytes = std::min(file_bytes, most_bytes);
  bool is_read = file_bytes != os::kInvalidFileSize;
  if (is_read) {
    content.resize(size_bytes);
    is_read = files.ReadFile(file, content.data(), size_bytes, read_bytes);
  }
  files.CloseHandle(file);
  // Fewer bytes than the file has are no content of it.
  if (!is_read || read_bytes != size_bytes) return std::nullopt;
  return content;
}

}  // namespace qdix::launcher
