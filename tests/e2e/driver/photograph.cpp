// A Windows program under Wine can start a program of the host by its path.
#include "tests/e2e/driver/photograph.h"

#include "tests/e2e/driver/file_keeper.h"
#include "tests/e2e/driver/polling.h"

namespace qdix::e2e {

namespace {

/// Runs a shell command of the host that makes a file, which gets its name when it is complete. False when it
/// does not appear.
bool MakeFile(const std::string& command, const std::string& file) {
  const std::string file_in_windows = "Z:" + file;
  std::string command_line = "Z:\\bin\\sh -c \"exec </dev/null >/dev/null 2>&1; " + command + "\"";
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started = {};
  DeleteFileA(file_in_windows.c_str());
  if (CreateProcessA(nullptr, command_line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                     &started) == 0) {
    return false;
  }
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  // Wine does not wait for programs of the host.
  return Eventually([&] { return GetFileAttributesA(file_in_windows.c_str()) != INVALID_FILE_ATTRIBUTES; });
}

std::string PhotoFile(const std::string& name) {
  return std::string(QDIX_SOURCE_DIR) + "/build/photos/" + name;
}

}  // namespace

bool Photograph(const std::string& name) {
  const std::string file = PhotoFile(name + ".png");
  return MakeFile("'" + std::string(QDIX_SOURCE_DIR) + "/tools/desktop/desktop.sh' photo '" + file + "'",
                  file);
}

COLORREF ScreenColour(POINT place) {
  const std::string file = PhotoFile("pixel.rgb");
  const std::string crop = "1x1+" + std::to_string(place.x) + "+" + std::to_string(place.y);
  const std::string command = "import -silent -window root -crop " + crop + " -depth 8 'rgb:" + file +
                              ".new' && mv '" + file + ".new' '" + file + "'";
  if (!MakeFile(command, file)) return CLR_INVALID;
  const std::string bytes = FileBytes("Z:" + file).value_or("");
  if (bytes.size() != 3) return CLR_INVALID;
  const auto part = [&bytes](std::size_t index) { return static_cast<BYTE>(bytes[index]); };
  return RGB(part(0), part(1), part(2));
}

}  // namespace qdix::e2e
