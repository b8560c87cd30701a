// Looking for a word in the topics: any sequence of characters, capital letters or not.
#pragma once

#include <string_view>
#include <vector>

#include "help_viewer/book.h"

namespace qdix::help_viewer {

/// Every place of the word in a topic's texts, in the order of reading. An empty word is nowhere.
[[nodiscard]] std::vector<Passage> FindInTopic(const Topic& topic, std::string_view word);

/// Indexes of the topics that have the word, in the order of the contents.
[[nodiscard]] std::vector<int> FindInBook(const Book& book, std::string_view word);

}  // namespace qdix::help_viewer
