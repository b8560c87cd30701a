#include "tuning/swap/swap_suggestion.h"

#include "base/numbers.h"
#include "tuning/swap/swap_size.h"

namespace qdix::tuning {

SwapSuggestion::SwapSuggestion(host::Boxes& boxes, const memory::MemoryMonitor& monitor,
                               screens::SwapFileScreen& screen, SwapFile& swap_file)
    : boxes_(boxes), monitor_(monitor), screen_(screen), swap_file_(swap_file) {
  screen_.cmdBeginnerSwapFile.OnClick = ui::Handler::To<&SwapSuggestion::cmdBeginnerSwapFile_Click>(*this);
}

base::Status SwapSuggestion::cmdBeginnerSwapFile_Click() {
  const base::Result<std::int16_t> size_mb = SuggestedSwapMb(monitor_.TotalRAM());
  if (!size_mb.Ok()) return size_mb.Error();
  for (int row = 0; row < screen_.Combo3.Count(); ++row) {
    if (swap_file_.FreeMb(swap_file_.DriveOf(row)) > size_mb.Value() + kSuggestionReserveMb) {
      return Suggest(row, size_mb.Value());
    }
  }
  screen_.optSwap1.SetSelected(true);
  Refuse(size_mb.Value());
  return base::kDone;
}

base::Status SwapSuggestion::Suggest(int row, std::int32_t size_mb) {
  const std::string drive = swap_file_.DriveOf(row);
  base::Ignore(screen_.Combo3.SetSelectedIndex(row));  // the row was just found
  const base::Status shown = swap_file_.SetSize(size_mb);
  if (!shown.Ok()) return shown;
  boxes_.Show(
      "Quondix suggests configuring your swapfile on your " + drive + " at a size of " +
      base::TextOf(size_mb) +
      " MB.\r\n\r\n"
      "If you are an advanced Windows user and you have more than one physical hard disk then you may want "
      "to view the tips help screen for information on how to further configure your virtual memory "
      "settings. This is located by pressing the button with the lightbulb on this screen.\r\n\r\n"
      "It is recomended that you run the Disk Defragmenter on this drive first.\r\n\r\n"
      "For changes to be made you must press the Save button.");
  return base::kDone;
}

/// Shows the text for one disk only if the list is empty, and the other text for any number of drives.
void SwapSuggestion::Refuse(std::int32_t size_mb) {
  const std::string needed_mb = base::TextOf(size_mb + kSuggestionReserveMb);
  if (screen_.Combo3.Count() == 0) {
    boxes_.Show(
        "Quondix suggests you leave your virtual memory settings configured to Window's default settings for "
        "now.\r\n\r\n"
        "Your Hard Disk does not have enough free disk space available as you should have at least " +
        needed_mb +
        " MB free.\r\n\r\n"
        "You should consider doing one of the following, and then try again.\r\n"
        "(1) Increase the amount of free disk space on your computer by deleting some unwanted files or "
        "uninstall any unwanted program.\r\n"
        "(2) Install a second Hard Disk onto your computer.");
    return;
  }
  boxes_.Show(
      "Quondix suggests you leave your virtual memory settings configured to Window's default "
      "settings.\r\n\r\n"
      "Your Hard Disks do not have enough free disk space available as you should have at least " +
      needed_mb +
      " MB free.\r\n\r\n"
      "You should consider doing one of the following, and then try again.\r\n"
      "(1) Increase the amount of free disk space on your computer by deleting some unwanted file or "
      "uninstall any unwanted program.\r\n"
      "(2) Move some files from one drive to another to fit."
      "(3) Install another (or larger) Hard Disk onto your computer.");
}

}  // namespace qdix::tuning
