// The book: the topics of the stream that the build makes from the help texts, in the order of the contents.
// Topics are read on request. Malformed parts of the stream are skipped.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "help_viewer/topic.h"

namespace qdix::help_viewer {

/// Index of the page that lists all topics, which is not in the stream.
inline constexpr int kContentsPage = -1;

class Book {
 public:
  struct Entry {
    std::int32_t number;
    std::string title;
    /// Index of the section, or -1 before the first one.
    int section;
    std::string_view body;
  };

  /// The stream must outlive this object.
  explicit Book(std::string_view stream);

  [[nodiscard]] const std::vector<std::string>& Sections() const { return sections_; }
  [[nodiscard]] const std::vector<Entry>& Entries() const { return entries_; }
  [[nodiscard]] int Count() const { return static_cast<int>(entries_.size()); }

  /// Returns the index of the topic with this number, or kContentsPage.
  [[nodiscard]] int IndexOf(std::int32_t number) const;
  /// Returns a topic, or the page that lists all topics if there is no topic with this index. Links to
  /// missing topics become plain text.
  [[nodiscard]] Topic Read(int index) const;

 private:
  [[nodiscard]] Topic ContentsPage() const;
  Entry* AddTopic(std::string_view heading, std::string_view rest);
  void CutDeadLinks(Text& text) const;

  std::vector<std::string> sections_;
  std::vector<Entry> entries_;
};

}  // namespace qdix::help_viewer
