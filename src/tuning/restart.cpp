#include "tuning/restart.h"

namespace qdix::tuning {

void Restart::RebootMachine() {
  constexpr std::uint32_t kReserved = 0;
  system_.session.ExitWindowsEx(os::kEwxReboot, kReserved);
}

void Restart::RebootAndUnload() {
  RebootMachine();
  form_.Unload();
}

void Restart::Offer() {
  const int answer = system_.dialogs.MessageBoxA(
      "You must restart your computer before the new settings take effect.\r\n\r\n"
      "Do you want to restart your computer now?",
      application_.Title(), os::kMbYesNo | os::kMbIconInformation);
  if (answer == os::kIdYes) RebootAndUnload();
}

}  // namespace qdix::tuning
