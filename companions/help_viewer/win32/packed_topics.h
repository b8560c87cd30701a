// Reads the topics from the program's resources.
#pragma once

#include <windows.h>

#include <string_view>

namespace qdix::help_viewer::win32 {

/// Returns the packed topics in the resource with this number, valid as long as the program runs; empty if
/// there are none.
[[nodiscard]] std::string_view PackedTopics(HINSTANCE instance, int resource_id);

}  // namespace qdix::help_viewer::win32
