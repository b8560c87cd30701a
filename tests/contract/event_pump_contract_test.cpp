// Event pump: handlers run inside it, and it returns.
#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

using EventPumpContract = ContractTest;

TEST_F(EventPumpContract, ReturnsWithNothingWaiting) {
  for (int pump = 0; pump < 1000; ++pump) system.event_pump.PumpEvents();
  SUCCEED() << "a pump that waits would never get here";
}

TEST_F(EventPumpContract, RunsWhatIsWaitingBeforeItReturns) {
  int runs = 0;
  machine->DoInNextPump([&] { ++runs; });
  EXPECT_EQ(runs, 0);
  system.event_pump.PumpEvents();
  EXPECT_EQ(runs, 1);
  system.event_pump.PumpEvents();
  EXPECT_EQ(runs, 1);
}

TEST_F(EventPumpContract, WaitTakesItsTimeAndRunsWhatArrives) {
  int runs = 0;
  machine->DoInNextPump([&] { ++runs; });
  const std::uint32_t before_ms = system.clock.GetTickCount();
  system.event_pump.WaitMs(300);
  const std::uint32_t passed_ms = system.clock.GetTickCount() - before_ms;
  EXPECT_EQ(runs, 1);
  EXPECT_GE(passed_ms, 300U);
}

TEST_F(EventPumpContract, HandlerMayPump) {
  std::string order;
  machine->DoInNextPump([&] {
    order += "outer(";
    machine->DoInNextPump([&] { order += "inner"; });
    system.event_pump.PumpEvents();
    order += ")";
  });
  system.event_pump.PumpEvents();
  EXPECT_EQ(order, "outer(inner)");
}

}  // namespace
}  // namespace qdix::contract
