// Numbers of the program's resources, shared by the resource compiler and the code.
#pragma once

#define QDIX_PROGRAM_ICON 1
#define QDIX_LIGHT_BULB_ICON 2

#ifndef RC_INVOKED
namespace qdix::app::win32 {
inline constexpr int kProgramIcon = QDIX_PROGRAM_ICON;
inline constexpr int kLightBulbIcon = QDIX_LIGHT_BULB_ICON;
}  // namespace qdix::app::win32
#endif
