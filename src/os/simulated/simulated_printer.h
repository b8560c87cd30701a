// A printer that keeps its pages. A test sets in advance what the user does in the dialog and which call
// fails.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "os/printer.h"
#include "os/simulated/simulated_text_device.h"

namespace qdix::os::simulated {

class SimulatedPrinter final : public Printer {
 public:
  Choice PrintDlgA() override {
    calls.emplace_back("PrintDlgA");
    if (while_open) while_open();
    is_open = choice == Choice::kPrint;
    return choice;
  }
  void DeleteDC() override {
    calls.emplace_back("DeleteDC");
    is_open = false;
  }

  PrinterPage GetDeviceCaps() override { return page; }
  TextDevice& Device() override { return device_; }

  bool StartDocA(const std::string& title) override {
    document = title;
    return Succeeds("StartDocA");
  }
  bool StartPage() override {
    device_.texts.clear();
    return Succeeds("StartPage");
  }
  bool EndPage() override {
    pages.push_back(device_.texts);
    return Succeeds("EndPage");
  }
  bool EndDoc() override {
    has_printed = Succeeds("EndDoc");
    return has_printed;
  }
  void AbortDoc() override { calls.emplace_back("AbortDoc"); }

  // What the test sets.
  Choice choice = Choice::kPrint;
  PrinterPage page{.width_px = 800, .height_px = 600, .dots_per_inch = 100};
  std::function<void()> while_open;
  std::string failing_call;

  // What the test checks.
  std::vector<std::string> calls;
  std::string document;
  /// The texts of each finished page.
  std::vector<std::vector<DrawnText>> pages;
  bool has_printed = false;
  bool is_open = false;

 private:
  [[nodiscard]] bool Succeeds(const std::string& call) {
    calls.push_back(call);
    return is_open && call != failing_call;
  }

  SimulatedTextDevice device_;
};

}  // namespace qdix::os::simulated
