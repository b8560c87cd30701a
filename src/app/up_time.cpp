#include "app/up_time.h"

#include "base/concat.h"
#include "base/numbers.h"

namespace qdix::app {

void UpTime::Show() {
  const double minutes = static_cast<double>(clock_.GetTickCount()) / 1000 / 60;
  const auto hours = static_cast<std::int32_t>(base::Truncate(minutes / 60));
  const auto minutes_of_hour = static_cast<std::int32_t>(base::RoundHalfEven(minutes)) % 60;
  screen_.lblTimeRunning.SetCaption(
      base::Concat({"Your system has been running for ", base::TextOf(hours), " hour(s) and ",
                    base::TextOf(minutes_of_hour), " minutes."}));
}

}  // namespace qdix::app
