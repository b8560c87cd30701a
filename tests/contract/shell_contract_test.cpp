// Notification area: an icon is added once, modified while it exists, deleted once.
#include <algorithm>

#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

class ShellContract : public ContractTest {
 protected:
  ShellContract() {
    icon.owner = machine->OpenWindow("QdixContractTray", "Owner of an icon");
    icon.id = 7;
    icon.callback_message = 0x0500;
    icon.flags = os::kNifAll;
    constexpr std::string_view kTip = "12.34 MB";
    std::copy(kTip.begin(), kTip.end(), icon.tip.begin());
  }

  os::NotifyIconData icon;
};

TEST_F(ShellContract, RecordHas88Bytes) { EXPECT_EQ(icon.size_bytes, 88U); }

TEST_F(ShellContract, IconExistsFromAddToDelete) {
  EXPECT_FALSE(system.shell.Shell_NotifyIconA(os::kNimModify, icon));
  EXPECT_TRUE(system.shell.Shell_NotifyIconA(os::kNimAdd, icon));
  EXPECT_TRUE(system.shell.Shell_NotifyIconA(os::kNimModify, icon));
  EXPECT_TRUE(system.shell.Shell_NotifyIconA(os::kNimDelete, icon));
  EXPECT_FALSE(system.shell.Shell_NotifyIconA(os::kNimDelete, icon));
}

TEST_F(ShellContract, IconIsNotAddedTwice) {
  EXPECT_TRUE(system.shell.Shell_NotifyIconA(os::kNimAdd, icon));
  EXPECT_FALSE(system.shell.Shell_NotifyIconA(os::kNimAdd, icon));
  EXPECT_TRUE(system.shell.Shell_NotifyIconA(os::kNimDelete, icon));
}

TEST_F(ShellContract, MissingFileIsNotOpened) {
  EXPECT_FALSE(system.shell.ShellExecuteA("Open", "C:\\qdix no such file.htm", os::kSwShowMaximized));
}

}  // namespace
}  // namespace qdix::contract
