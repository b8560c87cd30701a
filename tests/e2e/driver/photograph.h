// Pictures of the screen.
#pragma once

#include <string>

namespace qdix::e2e {

/// Saves a picture of the screen as build/photos/<name>.png; false when none came about.
[[nodiscard]] bool Photograph(const std::string& name);

}  // namespace qdix::e2e
