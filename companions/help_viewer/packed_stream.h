// Unpacks the topic stream in the program's resources, which tools/help/pack_topics.py packs.
#pragma once

#include <string>
#include <string_view>

namespace qdix::help_viewer {

/// Maximum length of a stream in bytes. A larger size means that the data is damaged.
inline constexpr std::size_t kMaxStreamBytes = 0x100000;

/// Unpacks a stream: four bytes with its size, lowest byte first, then groups of one byte of flags, lowest
/// bit first, and eight items. A set bit means a byte of the stream. A clear bit means a repetition in two
/// bytes: 13 bits of distance minus 1, and above them 3 bits of length minus 3. If the data is damaged, the
/// stream ends early.
[[nodiscard]] std::string Unpack(std::string_view packed);

}  // namespace qdix::help_viewer
