// What counts as a whole record: a value that is always written must be there, any other may be missing.
#include "undo/record.h"

#include <gtest/gtest.h>

#include "os/simulated/simulated_machine.h"
#include "tests/unit/undo/undo_rig.h"
#include "undo/entries.h"

namespace qdix::tests {
namespace {

/// A record with every value that an entry can have but one.
bool IsCompleteWithout(std::string_view left_out) {
  os::SimulatedMachine machine;
  const auto set = [&machine](const char* name) {
    machine.SetRegistryValue(os::kHkeyLocalMachine, kRecordKey, name, "1");
  };
  set(tuning::kRecordMarker);
  for (const undo::Entry& entry : undo::kEntries) {
    if (entry.value_name != nullptr && left_out != entry.value_name) set(entry.value_name);
  }
  return undo::Record::Read(machine.GetSystem().registry).IsComplete();
}

TEST(UndoRecord, IsCompleteWithEveryValueThatIsAlwaysWritten) {
  EXPECT_TRUE(IsCompleteWithout(""));
  for (const char* const always : {tuning::kRecordedMinCache, tuning::kRecordedMaxCache,
                                   tuning::kRecordedChunk, tuning::kRecordedTemplate}) {
    EXPECT_FALSE(IsCompleteWithout(always)) << always;
  }
  for (const char* const where_there_was_one :
       {tuning::kRecordedPagingDrive, tuning::kRecordedMinPagingFile, tuning::kRecordedMaxPagingFile}) {
    EXPECT_TRUE(IsCompleteWithout(where_there_was_one)) << where_there_was_one;
  }
}

}  // namespace
}  // namespace qdix::tests
