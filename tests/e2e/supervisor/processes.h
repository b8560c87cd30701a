// The processes of the Windows machine: listed, and ended.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>
#include <vector>

namespace qdix::e2e {

struct RunningProcess {
  DWORD id;
  DWORD parent_id;
  std::string file_name;
};

[[nodiscard]] std::vector<RunningProcess> RunningProcesses();

/// One line for each process, with the titles of its windows and whether they answer.
[[nodiscard]] std::string DescribeProcesses();

/// Ends every process that is neither this one nor among those in `kept`.
void EndAllBut(const std::vector<RunningProcess>& kept);

}  // namespace qdix::e2e
