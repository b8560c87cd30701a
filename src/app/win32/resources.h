// Numbers of the program's resources, for the resource compiler and for the code.
#pragma once

#define QDIX_PROGRAM_ICON 1

#ifndef RC_INVOKED
namespace qdix::app::win32 {
inline constexpr int kProgramIcon = QDIX_PROGRAM_ICON;
}  // namespace qdix::app::win32
#endif
