// Windows 95 keeps changes to an INI file in memory until they are flushed or another INI file is accessed.
// Until then the file on the disk has its old contents.
#include <algorithm>
#include <cctype>
#include <string>

#include "tests/strict95/guard/rules.h"

namespace qdix::strict95 {

namespace {

/// The INI file with changes in memory only; empty if there is none.
std::string& Unwritten() {
  static std::string name;
  return name;
}

std::string FileName(const char* path) {
  std::string name = path == nullptr ? "" : path;
  name = name.substr(name.find_last_of("\\/") + 1);
  std::transform(name.begin(), name.end(), name.begin(), [](unsigned char one) { return std::tolower(one); });
  return name;
}

void Written(const Call& call) {
  const bool is_flush = call.Argument(1) == 0 && call.Argument(2) == 0 && call.Argument(3) == 0;
  Unwritten() = is_flush ? std::string() : FileName(call.Argument<const char*>(4));
}

void Read(const Call& call) {
  if (FileName(call.Argument<const char*>(6)) != Unwritten()) Unwritten().clear();
}

void CheckFlushed(const Call& call) {
  if (Unwritten().empty() || FileName(call.Argument<const char*>(1)) != Unwritten()) return;
  Report(call, Rule::kProfileCache, Unwritten() + " is not flushed yet");
}

}  // namespace

void AddProfileRules(Watches& watches) {
  watches.After("WritePrivateProfileStringA", &Written);
  watches.After("GetPrivateProfileStringA", &Read);
  for (const char* const function :
       {"CopyFileA", "CreateFileA", "MoveFileA", "FindFirstFileA", "GetFileAttributesA"}) {
    watches.Before(function, &CheckFlushed);
  }
  // Changes in memory are lost when the system shuts down.
  watches.Before("ExitWindowsEx", [](Call& call) {
    if (!Unwritten().empty()) Report(call, Rule::kProfileCache, Unwritten() + " is not flushed yet");
  });
}

}  // namespace qdix::strict95
