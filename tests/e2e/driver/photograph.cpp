// Under Wine a Windows program can start a host program by its path.
#include "tests/e2e/driver/photograph.h"

#include <cstdlib>

#include "tests/e2e/driver/file_keeper.h"
#include "tests/e2e/driver/polling.h"

namespace qdix::e2e {

namespace {

/// Runs a shell command of the host that creates a file and renames it when it is complete. Returns false if
/// the file does not appear.
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
  // Wine does not wait for host programs. No handle is closed: Wine returns none for them, and what it leaves
  // in the record may be the handle of something else.
  return Eventually([&] { return GetFileAttributesA(file_in_windows.c_str()) != INVALID_FILE_ATTRIBUTES; });
}

std::string PhotoFile(const std::string& name) {
  const char* const folder = std::getenv("QDIX_PHOTOS");
  return std::string(QDIX_SOURCE_DIR) + "/build/photos/" + (folder != nullptr ? folder : ".") + "/" + name;
}

}  // namespace

bool Photograph(const std::string& name) {
  const std::string file = PhotoFile(name + ".png");
  return MakeFile("'" + std::string(QDIX_SOURCE_DIR) + "/tools/desktop/desktop.sh' photo '" + file + "'",
                  file);
}

std::string ScreenPixels(const RECT& part) {
  const std::string file = PhotoFile("pixels.rgb");
  const LONG width = part.right - part.left;
  const LONG height = part.bottom - part.top;
  const std::string crop = std::to_string(width) + "x" + std::to_string(height) + "+" +
                           std::to_string(part.left) + "+" + std::to_string(part.top);
  const std::string command = "import -silent -window root -crop " + crop + " -depth 8 'rgb:" + file +
                              ".new' && mv '" + file + ".new' '" + file + "'";
  if (!MakeFile(command, file)) return {};
  const std::string bytes = FileBytes("Z:" + file).value_or("");
  return bytes.size() == static_cast<std::size_t>(width * height * 3) ? bytes : std::string();
}

COLORREF ScreenColour(POINT place) {
  const std::string bytes = ScreenPixels({place.x, place.y, place.x + 1, place.y + 1});
  if (bytes.empty()) return CLR_INVALID;
  const auto part = [&bytes](std::size_t index) { return static_cast<BYTE>(bytes[index]); };
  return RGB(part(0), part(1), part(2));
}

}  // namespace qdix::e2e
