// Makes files that a damaged disk or another program may leave in place of the launcher's list. The same seed
// makes the same files.
#pragma once

#include <string>

#include "launcher/launcher_file.h"
#include "tests/fuzz/random_source.h"

namespace qdix::tests {

class RandomListMaker : public RandomSource {
 public:
  using RandomSource::RandomSource;

  /// Returns likely texts and arbitrary bytes.
  std::string RandomText(std::size_t most) {
    std::string text;
    for (auto left = Random() % (most + 1); left > 0; --left) {
      text += Chance(6) ? AnyByte() : static_cast<char>(' ' + Random() % 95);
    }
    return text;
  }

  std::string RandomFile() {
    static constexpr std::size_t kCounts[] = {0, 1, 2, 24, 25, 26, 27, 99, 100, 101};
    std::string file;
    for (std::size_t left = kCounts[Random() % std::size(kCounts)]; left > 0; --left) {
      file += launcher::RecordBytes({RandomText(60), RandomText(260), RandomText(260)});
    }
    if (Chance(3)) file.resize(Random() % (file.size() + 1));
    for (auto left = Chance(4) ? Random() % 600 : 0; left > 0; --left) file += AnyByte();
    return file;
  }
};

}  // namespace qdix::tests
