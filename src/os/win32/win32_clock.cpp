#include "os/win32/win32_clock.h"

#include <windows.h>

#include <array>

#include "base/date.h"
#include "os/win32/system_time.h"

namespace qdix::os::win32 {

namespace {

/// Buffer size for a long date in any language, including the NUL.
constexpr int kLongDateRoom = 128;

}  // namespace

double Win32Clock::Now() {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  return DaysOf(now);
}

std::uint32_t Win32Clock::GetTickCount() { return ::GetTickCount(); }

std::string Win32Clock::LongDate(double days) {
  const auto date = base::DaysToDate(days);
  if (!date) return {};
  SYSTEMTIME day{};
  day.wYear = static_cast<WORD>(date->year);
  day.wMonth = static_cast<WORD>(date->month);
  day.wDay = static_cast<WORD>(date->day);
  std::array<char, kLongDateRoom> text{};
  if (GetDateFormatA(LOCALE_USER_DEFAULT, DATE_LONGDATE, &day, nullptr, text.data(), kLongDateRoom) == 0) {
    return {};
  }
  return text.data();
}

}  // namespace qdix::os::win32
