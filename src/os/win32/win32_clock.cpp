#include "os/win32/win32_clock.h"

#include <windows.h>

#include <array>

#include "base/date.h"

namespace qdix::os::win32 {

namespace {

constexpr double kSecondsPerDay = 24.0 * 60 * 60;

/// Room for a long date of any language, its NUL included.
constexpr int kLongDateRoom = 128;

}  // namespace

double Win32Clock::Now() {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  const int seconds = (now.wHour * 60 + now.wMinute) * 60 + now.wSecond;
  return base::DaysOfDate(now.wYear, now.wMonth, now.wDay) + seconds / kSecondsPerDay;
}

std::uint32_t Win32Clock::GetTickCount() { return ::GetTickCount(); }

std::string Win32Clock::LongDate(double days) {
  const auto date = base::DateOfDays(days);
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
