// The record is on the disk before a tab changes anything else: after a crash there is no changed setting
// without a record of its old value.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/tuning_rig.h"

namespace qdix::tests {
namespace {

constexpr const char* kFlush = "RegFlushKey(HKLM\\SOFTWARE\\QDIX)";

class RecordFlush : public testing::Test {
 protected:
  void Start(screens::Tab tab) {
    rig.WriteSystemIni("[386Enh]\r\nPagingDrive=C:\r\n[vcache]\r\nMinFileCache=1024\r\n");
    rig.StartAt(tab);
    first_call = rig.machine.Calls().size();
    rig.Answer({os::kIdYes, os::kIdNo});
  }
  /// Returns the calls of the save that change something or flush.
  [[nodiscard]] std::vector<std::string> ChangesAndFlushes() const {
    std::vector<std::string> found;
    for (std::size_t call = first_call; call < rig.machine.Calls().size(); ++call) {
      const std::string& name = rig.machine.Calls()[call];
      const bool is_change = name.starts_with("RegSet") || name.starts_with("RegDelete") ||
                             name.starts_with("WritePrivate") || name.starts_with("CopyFile");
      if (is_change || name == kFlush) found.push_back(name);
    }
    return found;
  }
  void ExpectRecordThenFlushThenTheRest() const {
    const std::vector<std::string> calls = ChangesAndFlushes();
    const auto is_record = [](const std::string& call) {
      return call.starts_with("RegSetValueExA(HKLM\\SOFTWARE\\QDIX: ") || call.starts_with("CopyFileA(");
    };
    const auto flush = std::find(calls.begin(), calls.end(), kFlush);
    ASSERT_NE(flush, calls.end());
    EXPECT_GT(flush - calls.begin(), 5);
    EXPECT_TRUE(std::all_of(calls.begin(), flush, is_record));
    EXPECT_GT(calls.end() - flush, 3);
    EXPECT_TRUE(std::none_of(flush, calls.end(), is_record));
  }

  TuningRig rig;
  std::size_t first_call = 0;
};

TEST_F(RecordFlush, CacheSettings) {
  Start(screens::kCacheTab);
  rig.program->CacheScreen().Combo2.Choose("Multimedia (Win95)");
  rig.program->CacheScreen().Command11.Press();
  ExpectRecordThenFlushThenTheRest();
}

TEST_F(RecordFlush, OwnSwapFile) {
  Start(screens::kSwapFileTab);
  rig.program->SwapFileScreen().optSwap2.Press();
  rig.program->SwapFileScreen().Text8.SetText("192");
  rig.program->SwapFileScreen().Command18.Press();
  ExpectRecordThenFlushThenTheRest();
}

TEST_F(RecordFlush, SwapFileOfWindows) {
  Start(screens::kSwapFileTab);
  rig.program->SwapFileScreen().optSwap1.Press();
  rig.program->SwapFileScreen().Command18.Press();
  ExpectRecordThenFlushThenTheRest();
}

TEST_F(RecordFlush, LaterSavesDoNotFlush) {
  Start(screens::kCacheTab);
  rig.program->CacheScreen().Command11.Press();
  first_call = rig.machine.Calls().size();
  rig.Answer({os::kIdYes, os::kIdNo});
  rig.program->CacheScreen().Command11.Press();
  const std::vector<std::string> calls = ChangesAndFlushes();
  EXPECT_FALSE(calls.empty());
  EXPECT_EQ(std::count(calls.begin(), calls.end(), kFlush), 0);
}

}  // namespace
}  // namespace qdix::tests
