// Numbers of the program's resources, shared by the resource compiler and the code.
#pragma once

#define QDIX_HELP_VIEWER_ICON 1
#define QDIX_HELP_TOPICS 2

#ifndef RC_INVOKED
namespace qdix::help_viewer::win32 {
inline constexpr int kHelpViewerIcon = QDIX_HELP_VIEWER_ICON;
inline constexpr int kHelpTopics = QDIX_HELP_TOPICS;
}  // namespace qdix::help_viewer::win32
#endif
