#include "tuning/restart.h"

namespace qdix::tuning {

void Restart::RebootMachine() {
  constexpr std::uint32_t kReserved = 0;
  session_.ExitWindowsEx(os::kEwxReboot, kReserved);
}

void Restart::RebootAndUnload() {
  RebootMachine();
  form_.Unload();
}

void Restart::Offer() {
  if (boxes_.Agrees("You must restart your computer before the new settings take effect.\r\n\r\n"
                    "Do you want to restart your computer now?",
                    os::kMbIconInformation)) {
    RebootAndUnload();
  }
}

}  // namespace qdix::tuning
