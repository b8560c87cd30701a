// A program for others to start. Writes its command line, its current folder and its show command, one per
// line, to the file witness.txt beside itself, and ends.
#include <windows.h>

#include <array>
#include <string>

namespace {

std::string OwnFolder() {
  std::array<char, MAX_PATH> path{};
  GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
  const std::string text = path.data();
  return text.substr(0, text.rfind('\\') + 1);
}

std::string CurrentFolder() {
  std::array<char, MAX_PATH> path{};
  GetCurrentDirectoryA(static_cast<DWORD>(path.size()), path.data());
  return path.data();
}

bool Write(const std::string& path, const std::string& text) {
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  DWORD written = 0;
  const bool done = WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) != 0;
  CloseHandle(file);
  return done && written == text.size();
}

}  // namespace

/// A waiting program must not find half of the report, so the file is renamed when it is complete.
int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int show) {
  const std::string report = OwnFolder() + "witness.txt";
  const std::string unfinished = OwnFolder() + "witness.tmp";
  const bool written = Write(unfinished, std::string(GetCommandLineA()) + "\r\n" + CurrentFolder() +
                                             "\r\nshow " + std::to_string(show) + "\r\n");
  DeleteFileA(report.c_str());
  return written && MoveFileA(unfinished.c_str(), report.c_str()) != 0 ? 0 : 1;
}
