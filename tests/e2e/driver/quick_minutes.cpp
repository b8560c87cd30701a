#include "tests/e2e/driver/quick_minutes.h"

#include "tests/e2e/driver/import_redirect.h"
#include "tests/e2e/driver/inside_process.h"

namespace qdix::e2e {

namespace {

constexpr std::uint32_t kMinuteMs = 60000;
constexpr std::uint32_t kQuickMinuteMs = 5000;

/// Replaces an interval (the third argument) of one minute, then continues in the system function.
std::string StartQuicker(std::uint32_t set_timer) {
  MachineCode code;
  code.Bytes("\x81\x7C\x24\x0C").Number(kMinuteMs);        // cmp [esp + 12], a minute
  code.Bytes("\x75\x08");                                  // jne past the next
  code.Bytes("\xC7\x44\x24\x0C").Number(kQuickMinuteMs);   // [esp + 12] = a quick minute
  code.Bytes("\xB8").Number(set_timer).Bytes("\xFF\xE0");  // mov eax; jmp eax
  return code.Text();
}

}  // namespace

bool QuickenMinutes(HANDLE process) {
  const std::uint32_t set_timer = SystemFunction("user32.dll", "SetTimer");
  const ForeignPage page(process);
  return page.Write(0, StartQuicker(set_timer)) && RedirectImport(process, set_timer, page.At(0));
}

}  // namespace qdix::e2e
