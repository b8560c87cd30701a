// Memory of the real system, seen from inside the process and through the system's own record of the address
// space.
#include <windows.h>

#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

using MemoryWin32 = ContractTest;

constexpr std::uint32_t kBytes = 5 * os::kPageBytes + 1;
constexpr std::uint32_t kPages = 6;

TEST_F(MemoryWin32, BlockIsCommittedInWholePages) {
  void* block = system.memory.VirtualAlloc(kBytes);
  ASSERT_NE(block, nullptr);
  MEMORY_BASIC_INFORMATION region{};
  ASSERT_NE(VirtualQuery(block, &region, sizeof(region)), 0U);
  EXPECT_EQ(region.AllocationBase, block);
  EXPECT_EQ(region.RegionSize, kPages * os::kPageBytes);
  EXPECT_EQ(region.State, static_cast<DWORD>(MEM_COMMIT));
  EXPECT_EQ(region.Type, static_cast<DWORD>(MEM_PRIVATE));
  EXPECT_EQ(region.Protect, static_cast<DWORD>(PAGE_READWRITE));
  system.memory.VirtualFree(block);
}

TEST_F(MemoryWin32, FreedBlockAlsoFreesItsAddresses) {
  void* block = system.memory.VirtualAlloc(kBytes);
  ASSERT_NE(block, nullptr);
  system.memory.VirtualFree(block);
  MEMORY_BASIC_INFORMATION region{};
  ASSERT_NE(VirtualQuery(block, &region, sizeof(region)), 0U);
  EXPECT_EQ(region.State, static_cast<DWORD>(MEM_FREE));
}

TEST_F(MemoryWin32, BlockIsZeroedAndStaysZeroWhenTouched) {
  auto* block = static_cast<unsigned char*>(system.memory.VirtualAlloc(kBytes));
  ASSERT_NE(block, nullptr);
  system.memory.TouchPages(block, kBytes);
  for (std::uint32_t i = 0; i < kPages * os::kPageBytes; ++i) ASSERT_EQ(block[i], 0) << i;
  system.memory.VirtualFree(block);
}

TEST_F(MemoryWin32, TouchWritesEveryPageAndNoOther) {
  auto* block = static_cast<unsigned char*>(system.memory.VirtualAlloc(8 * os::kPageBytes));
  ASSERT_NE(block, nullptr);
  for (std::uint32_t page = 0; page < 8; ++page) block[page * os::kPageBytes] = 0xFF;
  system.memory.TouchPages(block, kBytes);
  for (std::uint32_t page = 0; page < 8; ++page) {
    EXPECT_EQ(block[page * os::kPageBytes], page < kPages ? 0 : 0xFF) << page;
  }
  system.memory.VirtualFree(block);
}

}  // namespace
}  // namespace qdix::contract
