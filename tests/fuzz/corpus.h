// Files written by hand or kept because they once found a fault. The fuzzers start from them as well as from
// random input.
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

/// Returns all files of tests/fuzz/corpus/KIND, sorted by name. Ends the test run if there are none.
[[nodiscard]] std::vector<CorpusFile> CorpusOf(std::string_view kind);

/// Returns the file with up to four bytes or pieces changed, removed, doubled or inserted.
[[nodiscard]] std::string Damaged(std::string bytes, RandomSource& random);

/// Calls `run(seed)` with successive seeds, QDIX_FUZZ_RUNS times or until one fails. QDIX_SEED is the first
/// seed.
template <class Run>
void RunSeeds(unsigned long runs_by_itself, const Run& run) {
  const unsigned long runs = NumberFromEnvironment("QDIX_FUZZ_RUNS", runs_by_itself);
  for (unsigned long i = 0; i < runs && !testing::Test::HasFailure(); ++i) {
    const unsigned seed = FirstSeed() + static_cast<unsigned>(i);
    SCOPED_TRACE("QDIX_SEED=" + std::to_string(seed));
    run(seed);
  }
}

/// Calls `run(seed, bytes)` with each file of a kind: first undamaged, then damaged by successive seeds.
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
