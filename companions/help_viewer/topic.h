// A topic as blocks of text. Plain data.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qdix::help_viewer {

inline constexpr std::int32_t kNoLink = -1;

/// A part of a text with one look. Ends at the next run or at the end of the text.
struct Run {
  std::size_t begin = 0;
  bool is_bold = false;
  /// Number of the topic to which this part links, or kNoLink.
  std::int32_t link = kNoLink;
};

/// Windows Latin characters, one byte each. The first run begins at 0; an empty text has no run.
struct Text {
  std::string characters{};
  std::vector<Run> runs{};
};

enum class BlockKind : std::uint8_t {
  kTitle,
  kHeading,
  kParagraph,
  kBullet,
  kStep,
  kHeaderRow,
  kRow,
  /// One line in a fixed-width font; never wrapped.
  kFixed,
};

/// Sign before the text of a bullet.
inline constexpr const char* kBulletSign = "\x95";

struct Block {
  BlockKind kind = BlockKind::kParagraph;
  /// Sign or number before the text of a bullet or step.
  std::string label{};
  /// One text, or one for each column of a row.
  std::vector<Text> cells{};
};

/// The first block is the title.
struct Topic {
  std::vector<Block> blocks{};
};

/// A part of a topic's text.
struct Passage {
  std::size_t block = 0;
  std::size_t cell = 0;
  std::size_t begin = 0;
  std::size_t length = 0;

  friend bool operator==(const Passage&, const Passage&) = default;
};

}  // namespace qdix::help_viewer
