// Wine's own programs loaded as it loads everybody else's.
#pragma once

#include <string>

namespace qdix::bench {

/// A copy of one of Wine's programs without the mark by which Wine knows its own. In a Windows 98 of Wine
/// every other program is given what 16-bit programs need besides (a first megabyte of memory, a kernel, two
/// drivers), which costs it time and memory before its first instruction. The shipped programs are others.
class ForeignCopy {
 public:
  /// Ends the measurement where there is no such program, or where it carries no mark.
  explicit ForeignCopy(const std::string& program);
  ForeignCopy(const ForeignCopy&) = delete;
  ForeignCopy& operator=(const ForeignCopy&) = delete;
  ~ForeignCopy();

  [[nodiscard]] const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace qdix::bench
