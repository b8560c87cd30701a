// Runs the end-to-end tests: under supervision, unless this is the process that the supervisor started.
#include <cstdlib>

#include "tests/e2e/strict_log.h"
#include "tests/e2e/supervisor/progress.h"
#include "tests/e2e/supervisor/supervisor.h"

int main(int count, char** arguments) {
  const char* const progress = std::getenv(qdix::e2e::kProgressVariable);
  if (progress == nullptr) return qdix::e2e::Supervisor({arguments, arguments + count}).Run();
  testing::InitGoogleTest(&count, arguments);
  testing::TestEventListeners& listeners = testing::UnitTest::GetInstance()->listeners();
  listeners.Append(new qdix::e2e::ProgressWriter(progress));
  listeners.Append(new qdix::e2e::StrictLog);
  return RUN_ALL_TESTS();
}
