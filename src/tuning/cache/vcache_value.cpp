#include "tuning/cache/vcache_value.h"

#include "base/numbers.h"

namespace qdix::tuning {

base::Result<std::int32_t> GetVCACHEValue(std::int32_t size_kb) {
  constexpr double kStepKb = 512;
  return base::ToInt32(base::RoundHalfEven(size_kb / kStepKb) * kStepKb);
}

}  // namespace qdix::tuning
