#include "bench/foreign_copy.h"

// clang-format off
#include <windows.h>
// clang-format on

#include <array>
#include <fstream>
#include <iterator>
#include <string_view>

#include "bench/session.h"

namespace qdix::bench {

namespace {

constexpr std::string_view kMark = "Wine builtin DLL";

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

ForeignCopy::ForeignCopy(const std::string& program) {
  std::array<char, MAX_PATH> folder{};
  GetSystemDirectoryA(folder.data(), folder.size());
  std::string bytes = BytesOf(std::string(folder.data()) + "\\" + program);
  const std::size_t mark = bytes.find(kMark);
  Require(mark != std::string::npos, program + " carries no mark of Wine");
  bytes.replace(mark, kMark.size(), kMark.size(), '\0');
  GetTempPathA(folder.size(), folder.data());
  path_ = std::string(folder.data()) + "other_" + program;
  std::ofstream copy(path_, std::ios::binary);
  copy << bytes;
  copy.close();
  Require(copy.good(), path_ + " cannot be written");
}

ForeignCopy::~ForeignCopy() { DeleteFileA(path_.c_str()); }

}  // namespace qdix::bench
