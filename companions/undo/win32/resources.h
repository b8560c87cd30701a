// Numbers of the program's resources, shared by the resource compiler and the code.
#pragma once

#define QDIX_UNDO_ICON 1

#ifndef RC_INVOKED
namespace qdix::undo::win32 {
inline constexpr int kUndoIcon = QDIX_UNDO_ICON;
}  // namespace qdix::undo::win32
#endif
