// A file read as one text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "os/files.h"

namespace qdix::shell {

/// The content of a file, of which no more than `max_bytes` are read; nothing where it cannot be opened or
/// read.
[[nodiscard]] std::optional<std::string> ReadWholeFile(os::Files& files, const std::string& path,
                                                       std::uint32_t max_bytes);

}  // namespace qdix::shell
