// The suggestion for beginners: which drive has room for a swap file, and of which size. Writes nothing.
#pragma once

#include "host/boxes.h"
#include "memory/memory_monitor.h"
#include "screens/swap_file_screen.h"
#include "tuning/swap/swap_file.h"

namespace qdix::tuning {

class SwapSuggestion {
 public:
  SwapSuggestion(host::Boxes& boxes, const memory::MemoryMonitor& monitor, screens::SwapFileScreen& screen,
                 SwapFile& swap_file);

  /// "Suggested Configuration (Beginners)". If no drive has enough room, suggests to let Windows manage the
  /// swap file.
  base::Status cmdBeginnerSwapFile_Click();

 private:
  base::Status Suggest(int row, std::int32_t size_mb);
  void Refuse(std::int32_t size_mb);

  host::Boxes& boxes_;
  const memory::MemoryMonitor& monitor_;
  screens::SwapFileScreen& screen_;
  SwapFile& swap_file_;
};

}  // namespace qdix::tuning
