// Files that somebody thought of, or that once found a fault: what the fuzzers begin with besides pure
// chance.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/fuzz/random_source.h"

namespace qdix::tests {

struct CorpusFile {
  std::string name;
  std::string bytes;
};

/// All files of tests/fuzz/corpus/KIND, by name. Ends the tests where there is none.
[[nodiscard]] std::vector<CorpusFile> CorpusOf(std::string_view kind);

/// The same file with up to four bytes or pieces changed, cut out, doubled or put in.
[[nodiscard]] std::string Damaged(std::string bytes, RandomSource& random);

}  // namespace qdix::tests
