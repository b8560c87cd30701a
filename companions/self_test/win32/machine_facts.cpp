#include "self_test/win32/machine_facts.h"

#include <windows.h>

#include "base/numbers.h"
#include "cpu/processor_name.h"
#include "ui/win32/owned.h"

namespace qdix::self_test::win32 {

namespace {

constexpr double kKbBytes = 1024;

std::string KbOf(std::uint32_t bytes) { return base::FormatThousands(bytes / kKbBytes) + " KB"; }

std::string WindowsVersion() {
  OSVERSIONINFOA version{};
  version.dwOSVersionInfoSize = sizeof version;
  if (GetVersionExA(&version) == FALSE) return "unknown";
  const bool is_9x = version.dwPlatformId == VER_PLATFORM_WIN32_WINDOWS;
  // Windows 95, 98 and ME repeat the version in the upper half.
  const DWORD build = is_9x ? LOWORD(version.dwBuildNumber) : version.dwBuildNumber;
  std::string text = is_9x ? "Windows " : "Windows NT ";
  text += base::ShortestText(version.dwMajorVersion) + "." + base::ShortestText(version.dwMinorVersion);
  text += " build " + base::ShortestText(build);
  const std::string more = static_cast<const char*>(version.szCSDVersion);
  return more.empty() ? text : text + ", " + more;
}

std::string Display() {
  const ui::win32::ScreenDevice screen;
  const int bits = GetDeviceCaps(screen.Get(), BITSPIXEL) * GetDeviceCaps(screen.Get(), PLANES);
  return base::TextOf(GetDeviceCaps(screen.Get(), HORZRES)) + " x " +
         base::TextOf(GetDeviceCaps(screen.Get(), VERTRES)) + ", " + base::TextOf(bits) +
         " bits per pixel, " + base::TextOf(GetDeviceCaps(screen.Get(), LOGPIXELSX)) + " dots per inch";
}

std::string Processor(os::Processor& processor) {
  const cpu::ProcessorIdentity identity = cpu::Identify(processor);
  std::string text = cpu::NameOf(identity);
  if (!identity.vendor.empty()) text += ", " + identity.vendor;
  const std::string signature = cpu::SignatureOf(identity);
  return signature.empty() ? text : text + ", " + signature;
}

}  // namespace

void WriteMachineFacts(Report& report, const os::System& real) {
  const os::MemoryStatus memory = real.memory.GlobalMemoryStatus();
  report.Fact("Date", real.clock.LongDate(real.clock.Now()));
  report.Fact("System", WindowsVersion());
  report.Fact("Memory", KbOf(memory.total_physical) + ", available " + KbOf(memory.available_physical));
  report.Fact("Page file", KbOf(memory.total_page_file) + ", available " + KbOf(memory.available_page_file));
  report.Fact("Address space", KbOf(memory.total_virtual) + ", available " + KbOf(memory.available_virtual));
  report.Fact("Processor", Processor(real.processor));
  report.Fact("Display", Display());
}

}  // namespace qdix::self_test::win32
