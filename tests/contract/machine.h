// The machine that the contract tests run against: the simulated one or the real one. It adds what a test
// needs beyond the interfaces themselves, mainly the actions of a user. Each side supplies its own.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "os/clipboard.h"
#include "os/screen.h"
#include "os/system.h"
#include "os/text_device.h"

namespace qdix::contract {

struct ShownBox {
  std::string text;
  std::string title;
};

class Machine {
 public:
  virtual ~Machine() = default;

  [[nodiscard]] virtual const os::System& GetSystem() = 0;

  /// Opens a top-level window in front of all other windows of the tests. It closes with the machine at the
  /// latest.
  virtual os::WindowHandle OpenWindow(const std::string& window_class, const std::string& title) = 0;
  virtual void CloseWindow(os::WindowHandle window) = 0;
  virtual void PlaceDirectlyBehind(os::WindowHandle window, os::WindowHandle front) = 0;
  virtual void Minimise(os::WindowHandle window) = 0;
  [[nodiscard]] virtual bool IsMinimised(os::WindowHandle window) = 0;
  virtual void Hide(os::WindowHandle window) = 0;
  [[nodiscard]] virtual bool IsShown(os::WindowHandle window) = 0;

  /// Runs an action inside the next pump.
  virtual void DoInNextPump(std::function<void()> action) = 0;

  /// Presses this button in the next box.
  virtual void AnswerNextBox(int button) = 0;
  /// Ends the program while the next box is open.
  virtual void StopInNextBox() = 0;
  [[nodiscard]] virtual std::vector<ShownBox> Boxes() = 0;

  /// Lets at least this much time pass.
  virtual void LetTimePass(int ms) = 0;

  // Parts that only some programs get.
  [[nodiscard]] virtual os::Clipboard& TheClipboard() = 0;
  [[nodiscard]] virtual os::Screen& TheScreen() = 0;
  [[nodiscard]] virtual os::TextDevice& TheTextDevice() = 0;
  /// Returns the text that another program would paste.
  [[nodiscard]] virtual std::string ClipboardText() = 0;
  /// Opens the clipboard from another window until ReleaseClipboard() closes it.
  virtual void HoldClipboard() = 0;
  virtual void ReleaseClipboard() = 0;

  /// Deletes a key and everything below it.
  virtual void DeleteRegistryTree(os::KeyHandle root, const std::string& path) = 0;
};

[[nodiscard]] std::unique_ptr<Machine> MakeMachine();

/// A test on a machine of its own.
class ContractTest : public testing::Test {
 protected:
  std::unique_ptr<Machine> machine = MakeMachine();
  const os::System& system = machine->GetSystem();
};

}  // namespace qdix::contract
