// Splits the topic stream into lines: the first byte of a line is its kind, the rest its text.
#pragma once

#include <string_view>

namespace qdix::help_viewer {

inline constexpr char kSectionLine = 'S';
inline constexpr char kTopicLine = '@';

/// Removes the next line from the front of the stream and returns it without its line end. The stream must
/// not be empty.
[[nodiscard]] inline std::string_view TakeNextLine(std::string_view& stream) {
  const std::size_t end = stream.find('\n');
  const std::string_view line = stream.substr(0, end);
  stream.remove_prefix(end == std::string_view::npos ? stream.size() : end + 1);
  return line;
}

/// Removes the text up to the next tab, with the tab, and returns it. Without a tab, removes and returns
/// everything.
[[nodiscard]] inline std::string_view TakeField(std::string_view& text) {
  const std::size_t end = text.find('\t');
  const std::string_view field = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return field;
}

}  // namespace qdix::help_viewer
