// A topic as it is shown: blocks of texts. Plain data.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qdix::help_viewer {

inline constexpr std::int32_t kNoLink = -1;

/// A stretch of a text in one look, up to the next run or the end of the text.
struct Run {
  std::size_t begin = 0;
  bool is_bold = false;
  /// Number of the topic that the stretch leads to, or kNoLink.
  std::int32_t link = kNoLink;
};

/// Bytes of Windows Latin characters. The first run begins at 0; without characters there is none.
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
  /// One line in letters of one width, never wrapped.
  kFixed,
};

/// What stands before the text of a bullet.
inline constexpr const char* kBulletSign = "\x95";

struct Block {
  BlockKind kind = BlockKind::kParagraph;
  /// What stands before the text of a bullet or a step.
  std::string label{};
  /// One text, or those of the columns of a row.
  std::vector<Text> cells{};
};

/// The first block is the title.
struct Topic {
  std::vector<Block> blocks{};
};

/// A stretch of a topic's texts.
struct Passage {
  std::size_t block = 0;
  std::size_t cell = 0;
  std::size_t begin = 0;
  std::size_t length = 0;

  friend bool operator==(const Passage&, const Passage&) = default;
};

}  // namespace qdix::help_viewer
