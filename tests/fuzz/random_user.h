// A random user who works any control of a window in any way that a mouse and a keyboard can, and runs with
// successive seeds.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "os/simulated/simulated_machine.h"
#include "tests/fuzz/random_source.h"
#include "tests/support/run_length.h"
#include "ui/control_numbers.h"
#include "ui/form.h"
#include "ui/lists.h"
#include "ui/ranges.h"
#include "ui/simple_controls.h"
#include "ui/tab_strip.h"
#include "ui/text_box.h"

namespace qdix::tests {

class RandomActions {
 public:
  explicit RandomActions(RandomSource& source) : source_(source) {}

  /// Collects all controls of a window for the random user.
  void Collect(const ui::Form& window) {
    controls_.clear();
    ui::VisitControls(window, ui::ControlVisitor::To<&RandomActions::Add>(*this));
  }
  void UseAny() { Use(*controls_[source_.Random() % controls_.size()]); }

  /// Returns typical texts of settings, and arbitrary bytes.
  std::string SomeText() {
    static constexpr std::string_view kLikely = "0123456789.-E MB";
    std::string text;
    for (auto left = source_.Random() % 12; left > 0; --left) {
      text += source_.Chance(4) ? static_cast<char>(1 + source_.Random() % 255)
                                : kLikely[source_.Random() % kLikely.size()];
    }
    return text;
  }

  /// Picks any of the buttons of the newest box, not always the default one.
  void Answer(os::SimulatedMachine& machine) {
    const std::uint32_t flags = machine.Boxes().back().flags;
    int answer = os::kIdOk;
    const std::uint32_t buttons = flags & os::kMbButtons;
    if (buttons == os::kMbYesNo) answer = source_.Chance(3) ? os::kIdNo : os::kIdYes;
    if (buttons == os::kMbYesNoCancel) {
      constexpr std::array<int, 3> kAnswers{os::kIdYes, os::kIdNo, os::kIdCancel};
      answer = kAnswers[source_.Random() % kAnswers.size()];
    }
    if (buttons == os::kMbOkCancel) answer = source_.Chance(2) ? os::kIdOk : os::kIdCancel;
    machine.AnswerNextBox(source_.Chance(10) ? os::kIdNone : answer);
  }

 private:
  void Add(ui::Control& control, int /*number*/) { controls_.push_back(&control); }

  void Use(ui::Control& control) {
    const auto number = static_cast<std::int32_t>(source_.Random() % 400) - 20;
    switch (control.GetKind()) {
      case ui::Kind::kTabStrip:
        return static_cast<ui::TabStrip&>(control).ChooseTab(number % 9);
      case ui::Kind::kButton:
        return static_cast<ui::Button&>(control).Press();
      case ui::Kind::kCheckBox:
        return static_cast<ui::CheckBox&>(control).Press();
      case ui::Kind::kOptionButton:
        return static_cast<ui::OptionButton&>(control).Press();
      case ui::Kind::kTextBox:
        control.SetFocus();
        return static_cast<ui::TextBox&>(control).TypeText(SomeText());
      case ui::Kind::kListBox:
        if (source_.Chance(3)) return static_cast<ui::ListBox&>(control).DoubleClick(number % 32);
        if (source_.Chance(6)) {
          return static_cast<ui::ListBox&>(control).PressRowKey(
              static_cast<ui::RowKey>(source_.Random() % 3));
        }
        return static_cast<ui::ListBox&>(control).ChooseIndex(number % 32);
      case ui::Kind::kDropDownList:
        return static_cast<ui::ListControl&>(control).ChooseIndex(number % 32);
      case ui::Kind::kVerticalScrollBar:
        return static_cast<ui::VerticalScrollBar&>(control).Drag(number);
      case ui::Kind::kSlider:
        return static_cast<ui::Slider&>(control).Drag(number);
      default:
        return control.SetFocus();
    }
  }

  RandomSource& source_;
  std::vector<ui::Control*> controls_;
};

/// Events per run; then the next seed starts.
inline constexpr int kEventsPerRun = 120;

/// Runs `User(seed).Run()` with successive seeds until there have been as many events as QDIX_EVENTS asks
/// for. Each run returns its number of events. QDIX_SEED with QDIX_EVENTS=1 replays one run.
template <class User>
void RunRandomUser(unsigned long events_by_itself) {
  const unsigned long wanted = NumberFromEnvironment("QDIX_EVENTS", events_by_itself);
  const unsigned first_seed = FirstSeed();
  unsigned seed = first_seed;
  for (unsigned long events = 0; events < wanted; ++seed) {
    SCOPED_TRACE("QDIX_SEED=" + std::to_string(seed));
    const unsigned long events_of_run = User(seed).Run();
    // A program that ends while it starts counts as one event.
    events += std::max(events_of_run, 1UL);
    if (testing::Test::HasFailure()) return;
  }
  std::cout << "at least " << wanted << " events in " << seed - first_seed << " runs\n";
}

}  // namespace qdix::tests
