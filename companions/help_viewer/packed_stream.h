// The topic stream as it lies in the program: packed by tools/help/pack_topics.py.
#pragma once

#include <string>
#include <string_view>

namespace qdix::help_viewer {

/// Longest stream, in bytes. A size beyond it is damage.
inline constexpr std::size_t kMostStreamBytes = 0x100000;

/// Unpacks a stream: four bytes with its size, the lowest first, then groups of a byte of flags, the lowest
/// bit first, and eight items: a set bit stands before a byte of the stream, a clear one before a repetition
/// of two bytes, 12 bits of distance less 1 and above them 4 bits of length less 3. Where the bytes are
/// damaged the stream ends early.
[[nodiscard]] std::string Unpack(std::string_view packed);

}  // namespace qdix::help_viewer
