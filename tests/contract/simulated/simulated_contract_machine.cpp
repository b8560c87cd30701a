#include "os/simulated/simulated_clipboard.h"
#include "os/simulated/simulated_machine.h"
#include "os/simulated/simulated_screen.h"
#include "os/simulated/simulated_text_device.h"
#include "tests/contract/machine.h"

namespace qdix::contract {

namespace {

constexpr double kNoon21November2026 = 46347.5;
constexpr std::uint32_t kMegabyte = 1024 * 1024;

class SimulatedContractMachine final : public Machine {
 public:
  SimulatedContractMachine() {
    machine_.SetMemory(64 * kMegabyte, 20 * kMegabyte, 100 * kMegabyte, 70 * kMegabyte);
    machine_.SetNow(kNoon21November2026);
    machine_.AddDrive('C', {.total_bytes = 1000 * kMegabyte, .free_bytes = 400 * kMegabyte});
    machine_.AddProgram("cmd");
    // A 133 MHz Pentium, as it identifies itself.
    machine_.FakeProcessor().SetLeaf(0, {.eax = 1, .ebx = 0x756E6547, .ecx = 0x6C65746E, .edx = 0x49656E69});
    machine_.FakeProcessor().SetLeaf(1, {.eax = 0x052C, .edx = 0x01BF});
    machine_.FakeProcessor().SetClock(133000);
  }

  const os::System& GetSystem() override { return machine_.GetSystem(); }

  os::WindowHandle OpenWindow(const std::string& window_class, const std::string& title) override {
    return machine_.OpenWindow(window_class, title);
  }
  void CloseWindow(os::WindowHandle window) override { machine_.CloseWindow(window); }
  void PlaceDirectlyBehind(os::WindowHandle window, os::WindowHandle front) override {
    machine_.PlaceDirectlyBehind(window, front);
  }
  void Minimise(os::WindowHandle window) override { machine_.Minimise(window); }
  bool IsMinimised(os::WindowHandle window) override { return machine_.IsMinimised(window); }
  void Hide(os::WindowHandle window) override { machine_.HideWindow(window); }
  bool IsShown(os::WindowHandle window) override { return machine_.IsWindowShown(window); }

  void DoInNextPump(std::function<void()> action) override {
    machine_.OnPump([this, action = std::move(action)](int) {
      const std::function<void()> once = action;
      machine_.OnPump({});
      once();
    });
  }

  void AnswerNextBox(int button) override { machine_.AnswerNextBox(button); }
  void StopInNextBox() override {
    machine_.WhileBoxIsOpen([this] { machine_.EndBoxes(); });
  }
  std::vector<ShownBox> Boxes() override {
    std::vector<ShownBox> boxes;
    for (const auto& box : machine_.Boxes()) boxes.push_back({box.text, box.title});
    return boxes;
  }

  void LetTimePass(int ms) override { machine_.AdvanceMs(ms); }

  os::Clipboard& TheClipboard() override { return clipboard_; }
  os::Screen& TheScreen() override { return screen_; }
  os::TextDevice& TheTextDevice() override { return text_device_; }
  std::string ClipboardText() override { return clipboard_.text; }
  void HoldClipboard() override { clipboard_.is_held = true; }
  void ReleaseClipboard() override { clipboard_.is_held = false; }

  /// The simulated registry goes away with the machine.
  void DeleteRegistryTree(os::KeyHandle /*root*/, const std::string& /*path*/) override {}

 private:
  os::SimulatedMachine machine_;
  os::simulated::SimulatedClipboard clipboard_;
  os::simulated::SimulatedScreen screen_;
  os::simulated::SimulatedTextDevice text_device_;
};

}  // namespace

std::unique_ptr<Machine> MakeMachine() { return std::make_unique<SimulatedContractMachine>(); }

}  // namespace qdix::contract
