#include "tuning/swap/swap_file.h"

#include "base/numbers.h"
#include "base/text.h"
#include "tuning/swap/swap_size.h"

namespace qdix::tuning {

namespace {

constexpr std::size_t kDriveLength = 2;

}  // namespace

SwapFile::SwapFile(const SystemIni& system_ini, DriveInfo& drives, const memory::MemoryMonitor& monitor,
                   screens::SwapFileScreen& screen)
    : system_ini_(system_ini), drives_(drives), monitor_(monitor), screen_(screen) {
  using ui::Handler;
  screen_.optSwap1.OnClick = Handler::To<&SwapFile::optSwap1_Click>(*this);
  screen_.optSwap2.OnClick = Handler::To<&SwapFile::optSwap2_Click>(*this);
  screen_.Text8.OnKeyPress = base::Callback<base::Status(char&)>::To<&SwapFile::Text8_KeyPress>(*this);
  screen_.Text8.OnValidate = base::Callback<base::Result<bool>()>::To<&SwapFile::Text8_Validate>(*this);
  screen_.VScroll4.OnChange = Handler::To<&SwapFile::VScroll4_Change>(*this);
}

void SwapFile::LoadSwapFile() {
  drives_.SetUseDiskFreeSpaceEx(drives_.HasDiskFreeSpaceEx());
  drives_.FillDriveCombo(screen_.Combo3);
  const SystemIni::Entry drive = system_ini_.ReadIniText(k386EnhSection, kPagingDriveEntry);
  if (drive.ReadsAsMissing()) {
    LoadManagedByWindows();
  } else {
    LoadOwnSetup(drive.text);
  }
}

void SwapFile::LoadManagedByWindows() {
  const SystemIni::Entry paging = system_ini_.ReadIniText(k386EnhSection, kPagingEntry);
  const bool is_on = paging.ReadsAsMissing() || base::Trim(paging.text).starts_with("on");
  (is_on ? screen_.optSwap1 : screen_.optSwap3).SetSelected(true);
  base::Ignore(screen_.Combo3.SetSelectedIndex(0));  // fails only on a machine without a fixed drive
  DisableSwapfileScreen();
  ShowSize(ProposedMb());
}

/// Reads both sizes even if the first one already shows a foreign setup.
void SwapFile::LoadOwnSetup(const std::string& paging_drive) {
  SelectDrive(paging_drive);
  const double min_mb = base::RoundHalfEven(ReadSizeMb(kMinPagingFileSizeEntry));
  const double max_mb = ReadSizeMb(kMaxPagingFileSizeEntry);
  if (!screen_.optSwap3.Selected() && min_mb == max_mb) {
    screen_.optSwap2.SetSelected(true);
    EnableSwapfileScreen();
    ShowSize(min_mb);
    return;
  }
  SelectOtherSetup();
  ShowSize(max_mb == 0 ? ProposedMb() : max_mb);
}

/// A missing size means a foreign setup and counts as 0.
double SwapFile::ReadSizeMb(const char* key) {
  const SystemIni::Entry size_kb = system_ini_.ReadIniText(k386EnhSection, key);
  if (size_kb.ReadsAsMissing()) {
    SelectOtherSetup();
    return 0;
  }
  return base::ParseLeadingNumber(size_kb.text) / kKilobytesPerMegabyte;
}

void SwapFile::SelectDrive(const std::string& paging_drive) {
  for (int row = 0; row < screen_.Combo3.Count(); ++row) {
    if (DriveOf(row) != paging_drive.substr(0, kDriveLength)) continue;
    base::Ignore(screen_.Combo3.SetSelectedIndex(row));  // the row was just found
    return;
  }
}

void SwapFile::SelectOtherSetup() {
  screen_.optSwap3.SetSelected(true);
  DisableSwapfileScreen();
}

void SwapFile::ShowSize(double size_mb) {
  screen_.Text8.SetText(base::ShortestText(size_mb));
  loading_ = true;
  screen_.VScroll4.SetNearest(base::ParseLeadingNumber(screen_.Text8.Text()));
  loading_ = false;
}

double SwapFile::ProposedMb() { return ProposedSwapMb(monitor_.TotalRAM(), FreeMb(SelectedDrive())); }

std::string SwapFile::DriveOf(int row) const { return screen_.Combo3.Item(row).substr(0, kDriveLength); }

std::string SwapFile::SelectedDrive() const { return DriveOf(screen_.Combo3.SelectedIndex()); }

double SwapFile::FreeMb(const std::string& drive) {
  return base::RoundHalfEven(drives_.FreeMegabytes(drive));
}

void SwapFile::DisableSwapfileScreen() { SetScreenEnabled(false); }

void SwapFile::EnableSwapfileScreen() { SetScreenEnabled(true); }

void SwapFile::SetScreenEnabled(bool enabled) {
  screen_.Frame11.SetEnabled(enabled);
  screen_.Combo3.SetEnabled(enabled);
  screen_.Text8.SetEnabled(enabled);
  screen_.VScroll4.SetEnabled(enabled);
  screen_.cmdBeginnerSwapFile.SetEnabled(enabled);
}

base::Status SwapFile::optSwap1_Click() {
  DisableSwapfileScreen();
  return base::kDone;
}

base::Status SwapFile::optSwap2_Click() {
  EnableSwapfileScreen();
  return base::kDone;
}

base::Status SwapFile::Text8_KeyPress(char& character) {
  ui::KeepDigits(character);
  return base::kDone;
}

base::Result<bool> SwapFile::Text8_Validate() {
  const double size_mb = base::WholePart(base::ParseLeadingNumber(screen_.Text8.Text()));
  screen_.Text8.SetText(base::ShortestText(size_mb));
  const base::Result<std::int32_t> whole_mb = base::ToInt32(size_mb);
  if (!whole_mb.Ok()) return whole_mb.Error();
  const base::Status moved = screen_.VScroll4.SetValue(whole_mb.Value());
  if (!moved.Ok()) return moved.Error();
  return true;
}

base::Status SwapFile::VScroll4_Change() {
  if (!loading_) screen_.Text8.SetText(base::TextOf(screen_.VScroll4.Value()));
  return base::kDone;
}

base::Status SwapFile::SetSize(std::int32_t size_mb) {
  screen_.Text8.SetText(base::TextOf(size_mb));
  const base::Result<bool> accepted = Text8_Validate();
  return accepted.Ok() ? base::kDone : base::Status(accepted.Error());
}

}  // namespace qdix::tuning
