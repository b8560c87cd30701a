// The book: the topics of the stream that the build makes of the help texts, in the order of the contents.
// Topics are read when they are asked for; what is malformed in the stream is passed over.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "help_viewer/topic.h"

namespace qdix::help_viewer {

/// Index of the page of all topics, which the stream does not hold.
inline constexpr int kContentsPage = -1;

class Book {
 public:
  struct Entry {
    std::int32_t number;
    std::string title;
    /// Index of the section, or -1 before the first one.
    int section;
    /// The lines of the topic.
    std::string_view body;
  };

  /// The stream must outlive this object.
  explicit Book(std::string_view stream);

  [[nodiscard]] const std::vector<std::string>& Sections() const { return sections_; }
  [[nodiscard]] const std::vector<Entry>& Entries() const { return entries_; }
  [[nodiscard]] int Count() const { return static_cast<int>(entries_.size()); }

  /// Index of the topic with this number, or kContentsPage.
  [[nodiscard]] int IndexOf(std::int32_t number) const;
  /// A topic, or the page of all of them for any index that no topic has. Links to topics that are not there
  /// are plain text.
  [[nodiscard]] Topic Read(int index) const;

 private:
  [[nodiscard]] Topic ContentsPage() const;
  Entry* AddTopic(std::string_view heading, std::string_view rest);
  void CutDeadLinks(Text& text) const;

  std::vector<std::string> sections_;
  std::vector<Entry> entries_;
};

}  // namespace qdix::help_viewer
