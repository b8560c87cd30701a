// The configuration of the swap file on the "Optimize Swapfile" tab: read from system.ini when the window
// loads, then changed by the user. Writes nothing.
#pragma once

#include <string>

#include "memory/memory_monitor.h"
#include "screens/swap_file_screen.h"
#include "tuning/swap/drive_info.h"
#include "tuning/system_ini.h"

namespace qdix::tuning {

/// Sizes are in megabytes on the screen and in kilobytes in system.ini.
inline constexpr double kKilobytesPerMegabyte = 1024;

class SwapFile {
 public:
  SwapFile(const SystemIni& system_ini, DriveInfo& drives, const memory::MemoryMonitor& monitor,
           screens::SwapFileScreen& screen);

  void LoadSwapFile();

  void DisableSwapfileScreen();
  void EnableSwapfileScreen();

  base::Status optSwap1_Click();
  base::Status optSwap2_Click();
  base::Status Text8_KeyPress(char& character);
  /// Always accepts the text. Returns error 380 if it is outside the scroll bar's range.
  base::Result<bool> Text8_Validate();
  base::Status VScroll4_Change();

  /// Shows a size and sets the scroll bar to it. Returns error 380 if it is outside the scroll bar's range.
  base::Status SetSize(std::int32_t size_mb);

  /// Return the drive letter and colon of a row of the list, or of the selected row; empty if there is none.
  [[nodiscard]] std::string DriveOf(int row) const;
  [[nodiscard]] std::string SelectedDrive() const;

  /// Returns the free space of a drive in whole megabytes of 1,024,000 bytes.
  [[nodiscard]] double FreeMb(const std::string& drive);

 private:
  void LoadManagedByWindows();
  void LoadOwnSetup(const std::string& paging_drive);
  [[nodiscard]] double ReadSizeMb(const char* key);
  void SelectDrive(const std::string& paging_drive);
  void SelectOtherSetup();
  void ShowSize(double size_mb);
  [[nodiscard]] double ProposedMb();
  void SetScreenEnabled(bool enabled);

  const SystemIni& system_ini_;
  DriveInfo& drives_;
  const memory::MemoryMonitor& monitor_;
  screens::SwapFileScreen& screen_;
  /// True while the scroll bar is set to a size that may be outside its range or have fractions. The size in
  /// the text box must then not change.
  bool loading_ = false;
};

}  // namespace qdix::tuning
