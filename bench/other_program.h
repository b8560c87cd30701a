// A program of the system that the shipped ones are measured against: started, seen, ended.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>

namespace qdix::bench {

class OtherProgram {
 public:
  /// The class of the main window tells it from other windows of the program.
  OtherProgram(std::string command_line, std::string window_class)
      : command_line_(std::move(command_line)), window_class_(std::move(window_class)) {}
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;
  ~OtherProgram() { End(); }

  /// False when the system does not start it.
  [[nodiscard]] bool Start();
  /// True while its main window is shown.
  [[nodiscard]] bool IsShown() const;
  /// Closes its window, and kills it when that does not end it.
  void End();

  [[nodiscard]] HANDLE Process() const { return process_; }
  [[nodiscard]] DWORD ProcessId() const { return process_id_; }

 private:
  const std::string command_line_;
  const std::string window_class_;
  HANDLE process_ = nullptr;
  DWORD process_id_ = 0;
};

}  // namespace qdix::bench
