#include "help_viewer/search.h"

#include <algorithm>

namespace qdix::help_viewer {

namespace {

/// Returns the lower-case letter of a Windows Latin character. The multiplication and division signs are
/// among the letters and stay unchanged.
unsigned char Small(char character) {
  const auto byte = static_cast<unsigned char>(character);
  const bool is_plain = byte >= 'A' && byte <= 'Z';
  const bool is_accented = byte >= 0xC0U && byte <= 0xDEU && byte != 0xD7U;
  return is_plain || is_accented ? static_cast<unsigned char>(byte + 0x20U) : byte;
}

bool SameLetter(char one, char other) { return Small(one) == Small(other); }

}  // namespace

std::vector<Passage> FindInTopic(const Topic& topic, std::string_view word) {
  std::vector<Passage> places;
  if (word.empty()) return places;
  for (std::size_t block = 0; block < topic.blocks.size(); ++block) {
    const std::vector<Text>& cells = topic.blocks[block].cells;
    for (std::size_t cell = 0; cell < cells.size(); ++cell) {
      const std::string& text = cells[cell].characters;
      auto found = std::search(text.begin(), text.end(), word.begin(), word.end(), SameLetter);
      while (found != text.end()) {
        places.push_back({block, cell, static_cast<std::size_t>(found - text.begin()), word.size()});
        found = std::search(found + static_cast<std::ptrdiff_t>(word.size()), text.end(), word.begin(),
                            word.end(), SameLetter);
      }
    }
  }
  return places;
}

std::vector<int> FindInBook(const Book& book, std::string_view word) {
  std::vector<int> topics;
  for (int index = 0; index < book.Count(); ++index) {
    if (!FindInTopic(book.Read(index), word).empty()) topics.push_back(index);
  }
  return topics;
}

}  // namespace qdix::help_viewer
