// Runs one of Wine's own programs the way Wine runs all others.
#pragma once

#include <string>

namespace qdix::bench {

/// Owns a copy of one of Wine's programs without the mark by which Wine recognizes its own. In Windows 98
/// mode Wine gives every other program what 16-bit programs need (a first megabyte of memory, a kernel, two
/// drivers), which costs time and memory before the first instruction. The shipped programs pay this too.
class ForeignCopy {
 public:
  /// Ends the bench with an error if the program is missing or has no mark.
  explicit ForeignCopy(const std::string& program);
  ForeignCopy(const ForeignCopy&) = delete;
  ForeignCopy& operator=(const ForeignCopy&) = delete;
  ~ForeignCopy();

  [[nodiscard]] const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace qdix::bench
