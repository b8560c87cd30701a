#include "launcher/launcher_file.h"

#include <algorithm>

#include "base/text.h"

namespace qdix::launcher {

namespace {

/// Returns the field at `place` of the content, as far as the content goes.
std::string ReadField(std::string_view content, std::size_t place, std::size_t width) {
  if (place >= content.size()) return {};
  return std::string(base::Trim(content.substr(place, width)));
}

void AppendField(std::string& record, const std::string& field, std::size_t width) {
  record.append(field, 0, width);
  record.append(width - std::min(field.size(), width), ' ');
}

}  // namespace

/// The length of a record is odd, so no remainder is exactly one half.
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

}  // namespace qdix::launcher
