// The lines of the topic stream: the first byte is the kind, the rest the text.
#pragma once

#include <string_view>

namespace qdix::help_viewer {

inline constexpr char kSectionLine = 'S';
inline constexpr char kTopicLine = '@';

/// Takes the next line off the front of the stream, without its end. The stream is not empty.
[[nodiscard]] inline std::string_view TakeNextLine(std::string_view& stream) {
  const std::size_t end = stream.find('\n');
  const std::string_view line = stream.substr(0, end);
  stream.remove_prefix(end == std::string_view::npos ? stream.size() : end + 1);
  return line;
}

/// Takes what stands before the next tab off the front of a text, or all of it.
[[nodiscard]] inline std::string_view TakeField(std::string_view& text) {
  const std::size_t end = text.find('\t');
  const std::string_view field = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return field;
}

}  // namespace qdix::help_viewer
