#include "help_viewer/win32/packed_topics.h"

namespace qdix::help_viewer::win32 {

std::string_view PackedTopics(HINSTANCE instance, int resource_id) {
  // 10 is RT_RCDATA.
  HRSRC const found = FindResourceA(instance, MAKEINTRESOURCEA(resource_id), MAKEINTRESOURCEA(10));
  HGLOBAL const loaded = found == nullptr ? nullptr : LoadResource(instance, found);
  const void* const bytes = loaded == nullptr ? nullptr : LockResource(loaded);
  if (bytes == nullptr) return {};
  return {static_cast<const char*>(bytes), SizeofResource(instance, found)};
}

}  // namespace qdix::help_viewer::win32
