// Files that somebody thought of, or that once found a fault: what the fuzzers begin with besides pure
// chance.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/fuzz/random_source.h"
#include "tests/support/run_length.h"

namespace qdix::tests {

struct CorpusFile {
  std::string name;
  std::string bytes;
};

/// All files of tests/fuzz/corpus/KIND, by name. Ends the tests where there is none.
[[nodiscard]] std::vector<CorpusFile> CorpusOf(std::string_view kind);

/// The same file with up to four bytes or pieces changed, cut out, doubled or put in.
[[nodiscard]] std::string Damaged(std::string bytes, RandomSource& random);

/// Calls `run(seed)` with one seed after the other, QDIX_FUZZ_RUNS times, until one fails. QDIX_SEED is the
/// first.
template <class Run>
void RunSeeds(unsigned long runs_by_itself, const Run& run) {
  const unsigned long runs = NumberFromEnvironment("QDIX_FUZZ_RUNS", runs_by_itself);
  for (unsigned long i = 0; i < runs && !testing::Test::HasFailure(); ++i) {
    const unsigned seed = FirstSeed() + static_cast<unsigned>(i);
    SCOPED_TRACE("QDIX_SEED=" + std::to_string(seed));
    run(seed);
  }
}

/// Calls `run(seed, bytes)` with each file of a kind, whole, and then damaged by one seed after the other.
template <class Run>
void RunCorpus(std::string_view kind, unsigned long damages_by_itself, const Run& run) {
  for (const CorpusFile& file : CorpusOf(kind)) {
    SCOPED_TRACE(file.name);
    run(FirstSeed(), file.bytes);
    RunSeeds(damages_by_itself, [&](unsigned seed) {
      RandomSource random(seed);
      run(seed, Damaged(file.bytes, random));
    });
  }
}

}  // namespace qdix::tests
