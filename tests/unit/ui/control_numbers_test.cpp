#include "ui/control_numbers.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "ui/form.h"
#include "ui/simple_controls.h"
#include "ui/tab_strip.h"

namespace qdix::ui {
namespace {

constexpr std::array<Design, 2> kPages{{{.name = "PageA"}, {.name = "PageB"}}};

struct Numbered {
  EventDispatcher events;
  Form form{events, {.name = "Form"}};
  TabStrip tabs{form, {.name = "Tabs"}, kPages};
  Frame frame{tabs.Page(0), {.name = "Frame"}};
  Label inside{frame, {.name = "Inside"}};
  Label after{tabs.Page(0), {.name = "After"}};
  Label on_b{tabs.Page(1), {.name = "OnB"}};
};

struct Record {
  std::vector<std::string> names;
  std::vector<int> numbers;
  void Visit(Control& control, int number) {
    names.emplace_back(control.Name());
    numbers.push_back(number);
  }
};

TEST(ControlNumbers, WalkNumbersContainersBeforeTheirContents) {
  const Numbered demo;
  Record record;
  VisitControls(demo.form, ControlVisitor::To<&Record::Visit>(record));
  EXPECT_EQ(record.names,
            (std::vector<std::string>{"Tabs", "PageA", "Frame", "Inside", "After", "PageB", "OnB"}));
  EXPECT_EQ(record.numbers, (std::vector<int>{1001, 1002, 1003, 1004, 1005, 1006, 1007}));
}

TEST(ControlNumbers, EachControlBelowTheRootHasItsNumber) {
  const Numbered demo;
  EXPECT_EQ(NumberOf(demo.form, demo.after), 1005);
  EXPECT_EQ(NumberOf(demo.form, demo.form), 0) << "the form itself has no number";
  EXPECT_EQ(NumberOf(demo.tabs.Page(1), demo.after), 0) << "it is on the other page";
}

}  // namespace
}  // namespace qdix::ui
