// Numbers of the icons among the program's resources.
#pragma once

namespace qdix::screens {

inline constexpr int kProgramPicture = 1;
inline constexpr int kLightBulbPicture = 2;

}  // namespace qdix::screens
