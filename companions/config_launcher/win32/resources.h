// Numbers of the program's resources, shared by the resource compiler and the code.
#pragma once

#define QDIX_CONFIG_LAUNCHER_ICON 1

#ifndef RC_INVOKED
namespace qdix::config_launcher::win32 {
inline constexpr int kConfigLauncherIcon = QDIX_CONFIG_LAUNCHER_ICON;
}  // namespace qdix::config_launcher::win32
#endif
