// Windows 95 keeps what is written to a profile in memory until it is flushed or another profile is asked
// for. Who reads the file as a file before that finds it as it was.
#include <algorithm>
#include <cctype>
#include <string>

#include "tests/strict95/guard/rules.h"

namespace qdix::strict95 {

namespace {

/// The profile that is written in memory only; empty where none is.
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
  // What is in memory only goes down with the system.
  watches.Before("ExitWindowsEx", [](Call& call) {
    if (!Unwritten().empty()) Report(call, Rule::kProfileCache, Unwritten() + " is not flushed yet");
  });
}

}  // namespace qdix::strict95
