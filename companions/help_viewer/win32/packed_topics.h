// The topics as a program carries them.
#pragma once

#include <windows.h>

#include <string_view>

namespace qdix::help_viewer::win32 {

/// The packed topics of the resource of this number, which stay where they are as long as the program runs;
/// empty where there are none.
[[nodiscard]] std::string_view PackedTopics(HINSTANCE instance, int resource_id);

}  // namespace qdix::help_viewer::win32
