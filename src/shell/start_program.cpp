#include "shell/start_program.h"

#include "base/text.h"

namespace qdix::shell {

base::Status StartProgram(os::Processes& processes, const std::string& command_line) {
  if (base::Trim(command_line).empty()) return base::kInvalidProcedureCall;
  switch (processes.CreateProcessA(command_line)) {
    case os::kErrorSuccess:
      return base::kDone;
    case os::kErrorFileNotFound:
    case os::kErrorPathNotFound:
    case os::kErrorNotReady:
      return base::kFileNotFound;
    case os::kErrorAccessDenied:
      return base::kPermissionDenied;
    default:
      return base::kInvalidProcedureCall;
  }
}

}  // namespace qdix::shell
