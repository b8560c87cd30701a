// Measures the shipped programs beside Wine's own in one run and prints the results for docs/benchmarks.md.
#include <cstdio>

#include "bench/measures.h"
#include "tests/e2e/driver/registry.h"

namespace {

void Add(std::vector<qdix::bench::Row>& rows, const std::vector<qdix::bench::Row>& more) {
  rows.insert(rows.end(), more.begin(), more.end());
}

}  // namespace

int main() {
  using namespace qdix::bench;
  const qdix::e2e::ProgramRegistry before;
  std::vector<Row> rows = MeasureSizes();
  Add(rows, MeasureStart());
  Add(rows, MeasureIdle());
  rows.push_back(MeasureRelease());
  rows.push_back(MeasureTicks());
  std::puts("## Budgets\n");
  PrintTable(rows);
  std::puts("\n## What the idle program holds of the system\n");
  PrintResources();
  before.PutBack();
  return 0;
}
