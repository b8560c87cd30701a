#include "tests/fuzz/corpus.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace qdix::tests {

std::vector<CorpusFile> CorpusOf(std::string_view kind) {
  std::vector<CorpusFile> files;
  const std::filesystem::path folder = std::filesystem::path(QDIX_CORPUS) / kind;
  std::error_code missing;
  for (const auto& entry : std::filesystem::directory_iterator(folder, missing)) {
    std::ifstream file(entry.path(), std::ios::binary);
    files.push_back({.name = entry.path().filename().string(),
                     .bytes = {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()}});
  }
  if (files.empty()) {
    std::fprintf(stderr, "fuzz: there is nothing in %s\n", folder.c_str());
    std::abort();
  }
  std::sort(files.begin(), files.end(),
            [](const auto& one, const auto& other) { return one.name < other.name; });
  return files;
}

std::string Damaged(std::string bytes, RandomSource& random) {
  constexpr std::size_t kLongestPiece = 40;
  for (auto left = 1 + random.Random() % 4; left > 0; --left) {
    const std::size_t at = random.Random() % (bytes.size() + 1);
    const std::size_t length = std::min<std::size_t>(random.Random() % kLongestPiece, bytes.size() - at);
    switch (random.Random() % 5) {
      case 0:
        if (at < bytes.size()) bytes[at] = random.AnyByte();
        break;
      case 1:
        bytes.erase(at, length);
        break;
      case 2:
        bytes.insert(at, bytes.substr(at, length));
        break;
      case 3:
        bytes.insert(at, 1, random.AnyByte());
        break;
      default:
        bytes.resize(at);
        break;
    }
  }
  return bytes;
}

}  // namespace qdix::tests
