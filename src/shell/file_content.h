// Reads a whole file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "os/files.h"

namespace qdix::shell {

/// Returns the content of a file, at most `max_bytes` of it, or nullopt if the file cannot be opened or read.
[[nodiscard]] std::optional<std::string> ReadWholeFile(os::Files& files, const std::string& path,
                                                       std::uint32_t max_bytes);

}  // namespace qdix::shell
