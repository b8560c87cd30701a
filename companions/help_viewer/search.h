// Searches the topics for a word: any sequence of characters, without regard to case.
#pragma once

#include <string_view>
#include <vector>

#include "help_viewer/book.h"

namespace qdix::help_viewer {

/// Returns every place of the word in a topic's texts, in reading order; none for an empty word.
[[nodiscard]] std::vector<Passage> FindInTopic(const Topic& topic, std::string_view word);

/// Returns the indexes of the topics that contain the word, in the order of the contents.
[[nodiscard]] std::vector<int> FindInBook(const Book& book, std::string_view word);

}  // namespace qdix::help_viewer
