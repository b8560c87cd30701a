#include "tests/strict95/guard/ledger.h"

#include <algorithm>

#include "tests/strict95/guard/report.h"

namespace qdix::strict95 {

void Ledger::Take(const Call& call, Kind kind, std::uint64_t handle) {
  Holdings& all = kinds_[kind];
  ++all.held[handle];
  ++all.count;
  all.most = std::max(all.most, all.count);
  if (all.count > kBudgets[kind].most) {
    Report(call, Rule::kBalance, Format("more than %d %s", kBudgets[kind].most, kBudgets[kind].name));
  }
}

bool Ledger::Give(Kind kind, std::uint64_t handle) {
  Holdings& all = kinds_[kind];
  const auto found = all.held.find(handle);
  if (found == all.held.end()) return false;
  --all.count;
  if (--found->second == 0) all.held.erase(found);
  return true;
}

Ledger& GetLedger() {
  static Ledger ledger;
  return ledger;
}

}  // namespace qdix::strict95
