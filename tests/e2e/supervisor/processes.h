// Lists and ends the processes of the Windows machine.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>
#include <string_view>
#include <vector>

namespace qdix::e2e {

struct RunningProcess {
  DWORD id;
  DWORD parent_id;
  std::string file_name;
};

[[nodiscard]] std::vector<RunningProcess> RunningProcesses();

/// Returns one line per process, with the titles of its windows and whether they answer.
[[nodiscard]] std::string DescribeProcesses();

/// Ends every process except this one and those in `kept`.
void EndAllBut(const std::vector<RunningProcess>& kept);

/// Ends every process of this program.
void EndAllOf(std::string_view file_name);

}  // namespace qdix::e2e
