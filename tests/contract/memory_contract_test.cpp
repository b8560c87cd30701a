// Memory: the status record and blocks.
#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

using MemoryContract = ContractTest;

TEST_F(MemoryContract, StatusRecordHas32Bytes) { EXPECT_EQ(system.memory.GlobalMemoryStatus().length, 32U); }

TEST_F(MemoryContract, AvailableMemoryDoesNotExceedTheTotal) {
  const os::MemoryStatus status = system.memory.GlobalMemoryStatus();
  EXPECT_GT(status.total_physical, 0U);
  EXPECT_GE(status.total_physical, status.available_physical);
  EXPECT_GT(status.available_virtual, 0U);
  EXPECT_GT(status.total_virtual, status.available_virtual);
  EXPECT_LE(status.memory_load_percent, 100U);
}

TEST_F(MemoryContract, BlockCanBeTouchedAndFreed) {
  void* block = system.memory.VirtualAlloc(1000001);
  ASSERT_NE(block, nullptr);
  system.memory.TouchPages(block, 1000001);
  system.memory.VirtualFree(block);
}

TEST_F(MemoryContract, BlocksHeldAtTheSameTimeDiffer) {
  void* first = system.memory.VirtualAlloc(4096);
  void* second = system.memory.VirtualAlloc(4096);
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first, second);
  for (void* block : {first, second}) {
    system.memory.TouchPages(block, 4096);
    system.memory.VirtualFree(block);
  }
}

TEST_F(MemoryContract, BlockAsLargeAsTheAddressSpaceIsRefused) {
  EXPECT_EQ(system.memory.VirtualAlloc(0xFFFFF000U), nullptr);
}

TEST_F(MemoryContract, EmptyBlockIsRefused) { EXPECT_EQ(system.memory.VirtualAlloc(0), nullptr); }

TEST_F(MemoryContract, RefusedBlockDoesNotPreventOthers) {
  ASSERT_EQ(system.memory.VirtualAlloc(0xFFFFF000U), nullptr);
  void* block = system.memory.VirtualAlloc(65536);
  ASSERT_NE(block, nullptr);
  system.memory.TouchPages(block, 65536);
  system.memory.VirtualFree(block);
}

}  // namespace
}  // namespace qdix::contract
