// The suggestion to beginners: on which drive a swap file of which size would fit. Writes nothing.
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

  /// "Suggested Configuration (Beginners)". Where no drive has room, proposes to leave it to Windows.
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
