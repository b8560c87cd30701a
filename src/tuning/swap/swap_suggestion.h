// The suggestion for beginners: which drive has room for a swap file, and of which size. Writes nothing.
#pragma once

#include "memory/memory_monitor.h"
#include "os/dialogs.h"
#include "screens/swap_file_screen.h"
#include "tuning/swap/swap_file.h"
#include "ui/application.h"

namespace qdix::tuning {

class SwapSuggestion {
 public:
  SwapSuggestion(os::Dialogs& dialogs, const ui::Application& application,
                 const memory::MemoryMonitor& monitor, screens::SwapFileScreen& screen, SwapFile& swap_file);

  /// "Suggested Configuration (Beginners)". If no drive has enough room, suggests to let Windows manage the
  /// swap file.
  base::Status cmdBeginnerSwapFile_Click();

 private:
  base::Status Suggest(int row, std::int32_t size_mb);
  void Refuse(std::int32_t size_mb);
  void Show(const std::string& text);

  os::Dialogs& dialogs_;
  const ui::Application& application_;
  const memory::MemoryMonitor& monitor_;
  screens::SwapFileScreen& screen_;
  SwapFile& swap_file_;
};

}  // namespace qdix::tuning
