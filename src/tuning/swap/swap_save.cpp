#include "tuning/swap/swap_save.h"

#include "base/numbers.h"
#include "tuning/swap/swap_size.h"

namespace qdix::tuning {

SwapSave::SwapSave(host::Boxes& boxes, const memory::MemoryMonitor& monitor, screens::SwapFileScreen& screen,
                   SwapFile& swap_file, const Tools& tools)
    : boxes_(boxes), monitor_(monitor), screen_(screen), swap_file_(swap_file), tools_(tools) {
  screen_.Command18.OnClick = ui::Handler::To<&SwapSave::Command18_Click>(*this);
}

base::Status SwapSave::Command18_Click() {
  tools_.first_save.CheckFirstSave();
  if (screen_.optSwap1.Selected()) {
    SaveWindowsDefault();
  } else if (screen_.optSwap2.Selected()) {
    SaveOwnSetup();
  } else {
    boxes_.Show("No changes have been made to your virtual memory settings.");
  }
  return base::kDone;
}

void SwapSave::SaveWindowsDefault() {
  if (!boxes_.Agrees(
          "Are you sure you want to set the virtual memory (swapfile) settings to Window's default "
          "settings?")) {
    return;
  }
  for (const char* const entry : {kPagingDriveEntry, kMinPagingFileSizeEntry, kMaxPagingFileSizeEntry}) {
    tools_.system_ini.DeleteIniValue(k386EnhSection, entry, kSystemIni);
  }
  tools_.system_ini.WriteIniText(k386EnhSection, kPagingEntry, "on", kSystemIni);
  if (boxes_.Agrees(
          "Quondix has reset your virtual memory settings to the system's defaults.\r\n"
          "These settings will not take place until you reboot your system. You should save any work "
          "before re-starting Windows.  Do you want to restart Windows now?")) {
    tools_.restart.RebootAndUnload();
  }
}

void SwapSave::SaveOwnSetup() {
  const double size_mb = base::ParseLeadingNumber(screen_.Text8.Text());
  const double lowest_mb = base::WholePart(monitor_.TotalRAM());
  if (size_mb < lowest_mb) {
    boxes_.Show(
        "It is not very safe to set the swapfile size this low. The lowest Quondix will allow you to set on "
        "this system is " +
        base::ShortestText(lowest_mb) + " MB.");
    return;
  }
  const std::string drive = swap_file_.SelectedDrive();
  const double free_mb = swap_file_.FreeMb(drive);
  if (size_mb + kSavedReserveMb - 1 >= free_mb) {
    boxes_.Show(
        "The size you have selected is too large.  You should decrease the Swapfile size, make some more "
        "space available on " +
        drive +
        " disk, or consider using a different fixed hard disk.\r\nThe maximum size you may allocate to the " +
        drive + " is " + base::ShortestText(free_mb - kSavedReserveMb) + " MB.");
    return;
  }
  if (!boxes_.Agrees("Are you sure you want to configure your Virtual Memory Settings?",
                     os::kMbDefaultButton2)) {
    return;
  }
  Write(drive, size_mb);
  tools_.restart.Offer();
}

/// Writes equal sizes: the next load recognises the program's own setup by them.
void SwapSave::Write(const std::string& drive, double size_mb) {
  const std::string size_kb = base::ShortestText(size_mb * kKilobytesPerMegabyte);
  tools_.system_ini.WriteIniText(k386EnhSection, kPagingDriveEntry, drive, kSystemIni);
  tools_.system_ini.WriteIniText(k386EnhSection, kMinPagingFileSizeEntry, size_kb, kSystemIni);
  tools_.system_ini.WriteIniText(k386EnhSection, kMaxPagingFileSizeEntry, size_kb, kSystemIni);
  tools_.system_ini.DeleteIniValue(k386EnhSection, kPagingEntry, kSystemIni);
}

}  // namespace qdix::tuning
