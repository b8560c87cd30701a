#include "tests/strict95/guard/report.h"

#include <array>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <set>

#include "tests/strict95/guard/exemptions.h"

namespace qdix::strict95 {

namespace {

std::string ProgramFile() {
  std::array<char, MAX_PATH> path{};
  return {path.data(), GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()))};
}

/// Returns the function that contains an address, from the sorted symbol list next to the program; "?" if
/// there is none.
std::string FunctionAt(std::uintptr_t address) {
  std::FILE* const list = std::fopen((ProgramFile() + ".symbols").c_str(), "r");
  if (list == nullptr) return "?";
  std::string function = "?";
  std::array<char, 4096> line{};
  while (std::fgets(line.data(), line.size(), list) != nullptr) {
    char* rest = nullptr;
    const unsigned long begin = std::strtoul(line.data(), &rest, 16);
    if (begin > address) break;
    const std::string kind_and_name = rest;
    if (kind_and_name.size() < 4 || (kind_and_name[1] != 'T' && kind_and_name[1] != 't')) continue;
    function = kind_and_name.substr(3, kind_and_name.find_last_not_of("\r\n") - 2);
  }
  std::fclose(list);
  return function;
}

/// Writes each line with a single call, because several programs may report at the same time.
void Append(const std::string& line) {
  const char* const path = std::getenv("QDIX_STRICT_LOG");
  if (path == nullptr) return;
  HANDLE const file = CreateFileA(path, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;
  SetFilePointer(file, 0, nullptr, FILE_END);
  DWORD written = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
}

}  // namespace

void Report(const Call& call, Rule rule, const std::string& text) {
  static std::set<std::string> told;
  // The return address may already belong to the next function, so look up the byte before it.
  const std::string function = FunctionAt(call.caller - 1);
  if (IsExempt({ProgramName(), rule, call.import->name, text, function})) return;
  const std::string line = Format("violation %d %s %s: %s; in %s\n", static_cast<int>(rule),
                                  ProgramName().c_str(), call.import->name, text.c_str(), function.c_str());
  if (told.insert(line).second) Append(line);
}

void ReportHeld(const char* what, int most) {
  Append(Format("held %s %s %d\n", ProgramName().c_str(), what, most));
}

const std::string& ProgramName() {
  static const std::string name = ProgramFile().substr(ProgramFile().rfind('\\') + 1);
  return name;
}

std::string Format(const char* format, ...) {
  std::array<char, 1024> text{};
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(text.data(), text.size(), format, arguments);
  va_end(arguments);
  return text.data();
}

}  // namespace qdix::strict95
